// SPDX-License-Identifier: MIT
#include "adapters/lua/protect.h"

#include "adapters/lua/machine.h"
#include "adapters/lua/stop.h"
#include "automation/error.h"
#include "automation/restore.h"

namespace hx::lua {

namespace {

int makeError(lua_State* state, std::int32_t number, const char* description) {
    lua_createtable(state, 0, 3);
    lua_pushinteger(state, number);
    lua_setfield(state, -2, "number");
    lua_pushstring(state, description);
    lua_setfield(state, -2, "description");
    luaL_where(state, callerLevel);
    lua_setfield(state, -2, "where");
    luaL_setmetatable(state, errorTypeName);
    return 1;
}

int takeFailure(lua_State* state, Machine& machine) {
    machine.failing = false;
    lua_settop(state, 0);
    lua_rawgeti(state, LUA_REGISTRYINDEX, machine.failure);
    return -1;
}

void pushCaught(lua_State* state) noexcept {
    lua_settop(state, 0);
    try {
        pushError(state, automation::caughtError());
    } catch (...) {
        lua_pushnil(state);
    }
}

int failStopping(lua_State* state) noexcept {
    lua_settop(state, 0);
    try {
        protect(state, 0, 1, [](lua_State* inner) {
            pushStop(inner);
            return 1;
        });
    } catch (...) {
        if (lua_gettop(state) == 0) lua_pushnil(state);
    }
    return -1;
}

}  // namespace

void pushError(lua_State* state, const automation::Error& error) noexcept {
    try {
        protect(state, 0, 1,
                [&](lua_State* inner) { return makeError(inner, error.number(), error.description().c_str()); });
    } catch (const Raised&) {
        // There was no room for the error: Lua's own error says so and takes its place.
    } catch (const std::bad_alloc&) {
        lua_pushnil(state);
    }
}

int detail::attempt(lua_State* state, int (*body)(lua_State*)) noexcept {
    Machine& machine = Machine::of(state);
    if (isStopping(state)) return failStopping(state);
    const automation::Restore running(machine.current, state);
    const auto charges = machine.memory.charges();
    int results = -1;
    try {
        machine.memory.requireRoom(state);
        results = body(state);
    } catch (const Raised&) {
        // Its value lies on the stack already.
    } catch (...) {
        pushCaught(state);
    }
    if (machine.stopping) return failStopping(state);
    // A callback of the macro failed on the way, and the editor may have shown and forgotten that.
    return machine.failing ? takeFailure(state, machine) : results;
}

}  // namespace hx::lua
