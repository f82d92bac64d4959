// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>
#include <string>
#include <vector>

#include "adapters/lua/value.h"

/// Values on a Lua stack.
namespace hx::lua {

/// The value at an index; errTypeMismatch for what C++ cannot take.
[[nodiscard]] Value valueAt(lua_State* state, int index);
/// Those from `first` to the top.
[[nodiscard]] std::vector<Value> valuesFrom(lua_State* state, int first);
/// The text at an index; errTypeMismatch for anything else.
[[nodiscard]] std::string textAt(lua_State* state, int index);

/// Puts a value on the stack. To be called in protect().
void push(lua_State* state, const Value& value);
/// Puts a value on the stack, as the one result of a guarded function.
int give(lua_State* state, const Value& value);

}  // namespace hx::lua
