// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/com/server.h"

namespace hx::server {

/// The one server of this library; what is built defines it.
[[nodiscard]] com::Server& serverOf(HMODULE library);

}  // namespace hx::server
