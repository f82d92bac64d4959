// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>

namespace hx::lua {

/// Keeps account in Machine::waiting of which thread waits for which, so that each of them can be stopped. To be
/// called in protect().
void watchThreads(lua_State* state);

}  // namespace hx::lua
