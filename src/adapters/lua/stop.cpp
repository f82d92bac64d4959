// SPDX-License-Identifier: MIT
#include "adapters/lua/stop.h"

#include "adapters/lua/call_original.h"
#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"
#include "automation/restore.h"

namespace hx::lua {

namespace {

constexpr int usualSteps = 1000;  // of the machine between two questions
// Lua hands this one to no message handler, and it needs no memory.
constexpr const char* stopValue = "not enough memory";

void hook(lua_State* state, lua_Debug*) {
    if (!isStopping(state)) return;
    pushStop(state);
    lua_error(state);
}

void failEachStep(lua_State* state) { lua_sethook(state, hook, LUA_MASKCOUNT, 1); }

// Without the function that asks.
int takeTraceback(lua_State* state, Machine& machine) {
    luaL_traceback(state, state, nullptr, 1);
    machine.rememberTraceback(lua_tostring(state, -1));
    return 0;
}

void beginStop(lua_State* state, Machine& machine) noexcept {
    machine.stopping = true;
    try {
        protect(state, 0, 0, [&](lua_State* inner) { return takeTraceback(inner, machine); });
    } catch (...) {
        // Without memory there is no account of where it happened.
        lua_pop(state, 1);
    }
}

// Each thread has a hook of its own. A new one gets that of the thread which makes it.
void failEverywhere(lua_State* state, const Machine& machine) noexcept {
    failEachStep(state);
    failEachStep(machine.main);
    for (lua_State* waiting : machine.waiting) failEachStep(waiting);
}

bool askStop(const Machine& machine) noexcept {
    try {
        return machine.options.stopRequested && machine.options.stopRequested();
    } catch (...) {
        return true;  // who asks cannot be told of it; going on for ever would be worse
    }
}

int setMetatable(lua_State* state) {
    if (lua_type(state, 2) == LUA_TTABLE) {
        lua_pushliteral(state, "__gc");
        if (lua_rawget(state, 2) != LUA_TNIL) {
            throw automation::Error(automation::errFail, "A table of a macro can have no finalizer (__gc)");
        }
        lua_pop(state, 1);
    }
    return callOriginal(state);
}

}  // namespace

void watch(lua_State* state) {
    Machine& machine = Machine::of(state);
    machine.stopping = false;
    machine.failing = false;
    machine.waiting.clear();
    // What the run before has left must not count against the memory of this one.
    lua_gc(state, LUA_GCCOLLECT);
    machine.memory.begin();
    if (machine.options.stopRequested) lua_sethook(state, hook, LUA_MASKCOUNT, usualSteps);
}

void unwatch(lua_State* state) {
    Machine& machine = Machine::of(state);
    machine.stopping = false;
    machine.failing = false;
    lua_sethook(state, nullptr, 0, 0);
}

bool isStopping(lua_State* state) noexcept {
    Machine& machine = Machine::of(state);
    if (!machine.stopping) {
        const automation::Restore running(machine.current, state);
        if (!askStop(machine)) return false;
        beginStop(state, machine);
    }
    failEverywhere(state, machine);
    return true;
}

void pushStop(lua_State* state) { lua_pushstring(state, stopValue); }

void refuseFinalizers(lua_State* state) {
    lua_pushglobaltable(state);
    wrapMember(state, "setmetatable", guarded<setMetatable>);
    lua_pop(state, 1);
}

}  // namespace hx::lua
