// SPDX-License-Identifier: MIT
#pragma once

#include <lua.hpp>
#include <new>

#include "automation/error.h"

/// Lua leaves a function that fails by a jump, which would pass by the destructors of C++; and an exception must not
/// pass through Lua. So each of its functions that may fail is called in protect(), and each function that it calls is
/// entered through guarded().
namespace hx::lua {

/// Who called, for luaL_where: above the protected action and the guarded function.
inline constexpr int callerLevel = 2;

/// A function of Lua's failed; the error value lies on top of the stack.
struct Raised {};

namespace detail {

template <class Action>
int runAction(lua_State* state) {
    const auto* action = static_cast<const Action*>(lua_touserdata(state, -1));
    lua_pop(state, 1);
    return (*action)(state);
}

/// Runs the body; -1 after an error, whose value then lies on top of the stack.
int attempt(lua_State* state, int (*body)(lua_State*)) noexcept;

}  // namespace detail

/// Runs an action with the `arguments` uppermost values as its stack; the values that it returns (their number is its
/// result, `results` of them, or all with LUA_MULTRET) take their place. The action must own nothing and throw nothing.
/// Throws Raised.
template <class Action>
void protect(lua_State* state, int arguments, int results, const Action& action) {
    if (lua_checkstack(state, 4) == 0) throw std::bad_alloc();
    lua_pushcfunction(state, &detail::runAction<Action>);
    lua_insert(state, -1 - arguments);
    lua_pushlightuserdata(state, const_cast<Action*>(&action));
    if (lua_pcall(state, arguments + 1, results, 0) != LUA_OK) throw Raised{};
}

/// Puts an error on the stack: a table with number, description and where. In want of memory it is Lua's own, or nil.
void pushError(lua_State* state, const automation::Error& error) noexcept;

/// The function for Lua around a body that may throw: when the error is raised, nothing of C++ is left behind.
template <int (*Body)(lua_State*)>
int guarded(lua_State* state) {
    const int results = detail::attempt(state, Body);
    return results >= 0 ? results : lua_error(state);
}

}  // namespace hx::lua
