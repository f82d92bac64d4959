// SPDX-License-Identifier: MIT
#include "adapters/lua/threads.h"

#include "adapters/lua/call_original.h"
#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"

namespace hx::lua {

namespace {

/// The thread that waits for another, while it waits.
class Waiting {
  public:
    Waiting(Machine& machine, lua_State* state) : machine_(machine) { machine_.waiting.push_back(state); }
    ~Waiting() { machine_.waiting.pop_back(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

  private:
    Machine& machine_;
};

int callThread(lua_State* state) {
    const Waiting waiting(Machine::of(state), state);
    return callOriginal(state);
}

// A thread that has failed is closed, which runs what the macro has set to be closed. In a thread that the hook has
// failed that would be under no hook: it is left as it is.
int failWrapped(lua_State* state, lua_State* thread) {
    int status = lua_status(thread);
    if (status > LUA_YIELD && !Machine::of(state).stopping) status = lua_resetthread(thread);
    lua_xmove(thread, state, 1);
    if (status != LUA_ERRMEM && lua_type(state, -1) == LUA_TSTRING) {
        luaL_where(state, callerLevel);
        lua_insert(state, -2);
        lua_concat(state, 2);
    }
    return lua_error(state);
}

int resumeWrapped(lua_State* state, lua_State* thread) {
    const int given = lua_gettop(state);
    if (lua_checkstack(thread, given) == 0) return luaL_error(state, "too many arguments to resume");
    lua_xmove(state, thread, given);
    int results = 0;
    const int status = lua_resume(thread, state, given, &results);
    if (status != LUA_OK && status != LUA_YIELD) return failWrapped(state, thread);
    luaL_checkstack(state, results, "too many results to resume");
    lua_xmove(thread, state, results);
    return results;
}

int callWrapped(lua_State* state) {
    const Waiting waiting(Machine::of(state), state);
    lua_State* const thread = lua_tothread(state, lua_upvalueindex(1));
    protect(state, lua_gettop(state), LUA_MULTRET, [&](lua_State* inner) { return resumeWrapped(inner, thread); });
    return lua_gettop(state);
}

// Stands in front of the function that makes a thread.
int wrapThread(lua_State* state) {
    callOriginal(state);
    protect(state, 1, 1, [](lua_State* inner) {
        lua_pushcclosure(inner, guarded<callWrapped>, 1);
        return 1;
    });
    return 1;
}

}  // namespace

void watchThreads(lua_State* state) {
    lua_getglobal(state, LUA_COLIBNAME);
    wrapMember(state, "resume", guarded<callThread>);
    wrapMember(state, "close", guarded<callThread>);
    lua_getfield(state, -1, "create");
    lua_setfield(state, -2, "wrap");
    wrapMember(state, "wrap", guarded<wrapThread>);
    lua_pop(state, 1);
}

}  // namespace hx::lua
