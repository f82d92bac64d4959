// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>

/// Ending a macro from outside. Lua's own errors can be caught; so once the macro is to end, every further step of it
/// fails, in each of its threads, until nothing is left that could catch.
namespace hx::lua {

/// From now on EngineOptions::stopRequested is asked while the macro runs. To be called before each run.
void watch(lua_State* state);
/// The run has ended: what is called now is no step of the macro's.
void unwatch(lua_State* state);
/// Asks it; once it has said yes, this is true until the run has ended.
[[nodiscard]] bool isStopping(lua_State* state) noexcept;
/// Puts on the stack what a step of a macro that is to end fails with: an error that no message handler of the
/// macro's sees. To be called in protect().
void pushStop(lua_State* state);

/// Lets no table have a finalizer: Lua runs those without asking anybody. To be called in protect().
void refuseFinalizers(lua_State* state);

}  // namespace hx::lua
