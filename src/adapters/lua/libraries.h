// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>

namespace hx::lua {

/// Opens Lua's libraries as far as the machine's options allow: without trust no processes, no code of other files, no
/// precompiled code, and of the files those that the options name. print and io.write go to the options' print. To be
/// called in protect().
void openLibraries(lua_State* state, bool trusted);

}  // namespace hx::lua
