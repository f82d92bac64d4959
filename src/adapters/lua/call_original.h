// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>

/// Functions of Lua's libraries with a guard in front of them.
namespace hx::lua {

/// In a guard: calls the function that it stands in front of with all that is on the stack, which its results replace.
int callOriginal(lua_State* state);
/// In the table on top of the stack a function gets this guard. To be called in protect().
void wrapMember(lua_State* state, const char* name, lua_CFunction guard);

}  // namespace hx::lua
