// SPDX-License-Identifier: MIT
#include "adapters/lua/machine.h"

#include <new>

#include "adapters/lua/libraries.h"
#include "adapters/lua/object.h"
#include "adapters/lua/protect.h"
#include "adapters/lua/stack.h"
#include "automation/error.h"

namespace hx::lua {

namespace {

int errorText(lua_State* state) {
    for (const char* field : {"where", "number", "description"}) lua_getfield(state, 1, field);
    lua_pushfstring(state, "%s%s: %s", lua_tostring(state, -3), lua_tostring(state, -2), lua_tostring(state, -1));
    return 1;
}

int nullText(lua_State* state) {
    lua_pushliteral(state, "null");
    return 1;
}

void registerErrors(lua_State* state) {
    luaL_newmetatable(state, errorTypeName);
    lua_pushcfunction(state, errorText);
    lua_setfield(state, -2, "__tostring");
    lua_pushstring(state, "error");
    lua_setfield(state, -2, "__name");
    lua_pop(state, 1);
}

void registerNull(lua_State* state) {
    Machine::of(state).null = lua_newuserdatauv(state, 0, 0);
    lua_createtable(state, 0, 2);
    lua_pushcfunction(state, nullText);
    lua_setfield(state, -2, "__tostring");
    lua_pushstring(state, "null");
    lua_setfield(state, -2, "__metatable");
    lua_setmetatable(state, -2);
    lua_pushvalue(state, -1);
    lua_setfield(state, LUA_REGISTRYINDEX, nullName);
    lua_setglobal(state, "null");
}

int readGlobal(lua_State* state) {
    if (lua_type(state, 2) != LUA_TSTRING) return 0;
    const Machine& machine = Machine::of(state);
    const auto found = machine.globals.find(textAt(state, 2));
    return found == machine.globals.end() ? 0 : give(state, found->second());
}

void registerGlobals(lua_State* state) {
    lua_pushglobaltable(state);
    lua_createtable(state, 0, 2);
    lua_pushcfunction(state, guarded<readGlobal>);
    lua_setfield(state, -2, "__index");
    lua_pushstring(state, "globals");
    lua_setfield(state, -2, "__metatable");
    lua_setmetatable(state, -2);
    lua_pop(state, 1);
}

int setUp(lua_State* state) {
    Machine& machine = Machine::of(state);
    openLibraries(state, machine.options.trusted);
    registerObjects(state);
    registerErrors(state);
    registerNull(state);
    registerGlobals(state);
    lua_pushboolean(state, 0);
    machine.failure = luaL_ref(state, LUA_REGISTRYINDEX);
    return 0;
}

}  // namespace

Machine::Machine(EngineOptions given) : options(std::move(given)), main(luaL_newstate()), current(main) {
    if (main == nullptr) throw std::bad_alloc();
    *static_cast<Machine**>(lua_getextraspace(main)) = this;
    memory.limit = options.memoryLimit;
    memory.limitState(main);
    try {
        protect(main, 0, 0, [](lua_State* state) { return setUp(state); });
    } catch (...) {  // for want of memory: nothing else can fail in it
        lua_close(main);
        throw std::bad_alloc();
    }
}

void Machine::rememberTraceback(const char* text) noexcept {
    try {
        traceback = text;
    } catch (const std::bad_alloc&) {
        traceback.clear();
    }
}

Machine::~Machine() { lua_close(main); }

Machine& Machine::of(lua_State* state) noexcept { return **static_cast<Machine**>(lua_getextraspace(state)); }

// An error that a callback has handed on keeps the place where it happened first.
int keepTraceback(lua_State* state) {
    Machine& machine = Machine::of(state);
    lua_rawgeti(state, LUA_REGISTRYINDEX, machine.failure);
    if (lua_rawequal(state, 1, -1) == 0 || machine.traceback.empty()) {
        luaL_traceback(state, state, nullptr, 1);
        machine.rememberTraceback(lua_tostring(state, -1));
    }
    lua_settop(state, 1);
    return 1;
}

}  // namespace hx::lua
