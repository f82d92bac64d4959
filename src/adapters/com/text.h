// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <windows.h>
#include <wtypes.h>

namespace hx::com {

/// What is no text in one becomes U+FFFD in the other.
[[nodiscard]] std::string toUtf8(std::wstring_view text);
[[nodiscard]] std::wstring toWide(std::string_view text);

/// COM's text, which may hold zeros; a null pointer is an empty one.
[[nodiscard]] std::string textOf(BSTR text);
/// For the caller to free; throws std::bad_alloc.
[[nodiscard]] BSTR makeBstr(std::string_view text);

}  // namespace hx::com
