// SPDX-License-Identifier: MIT
#pragma once

#include <windows.h>
#include <wtypes.h>

#include "hosting/windows_text.h"

namespace hx::com {

using hosting::toUtf8;
using hosting::toWide;

/// COM's text, which may hold zeros; a null pointer is an empty one.
[[nodiscard]] std::string textOf(BSTR text);
/// For the caller to free; throws std::bad_alloc.
[[nodiscard]] BSTR makeBstr(std::string_view text);

}  // namespace hx::com
