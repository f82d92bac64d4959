// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>

#include "automation/dispatch.h"

/// Objects that are reached by name, as values of a macro.
namespace hx::lua {

/// Makes their metatables. To be called in protect().
void registerObjects(lua_State* state);
/// Puts an object on the stack, nil for an empty reference. To be called in protect().
void pushObject(lua_State* state, const automation::ObjectRef& object);
/// The object at an index; null when something else lies there.
[[nodiscard]] const automation::ObjectRef* objectAt(lua_State* state, int index);

}  // namespace hx::lua
