// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <windows.h>

#include "server/view.h"

namespace hx::server {

/// The studio's view for an object of this library, in the language that the registry names.
[[nodiscard]] std::unique_ptr<View> makeToolkitView(HMODULE library);

}  // namespace hx::server
