#include "adapters/lua/protect.h"

#include <utility>

#include "adapters/lua/machine.h"
#include "automation/error.h"

namespace hx::lua {

namespace {

constexpr int callerLevel = 2;  // above the protected action and the guarded function

/// The thread that runs, while it runs.
class Running {
  public:
    Running(Machine& machine, lua_State* state) : machine_(machine), before_(std::exchange(machine.current, state)) {}
    ~Running() { machine_.current = before_; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

  private:
    Machine& machine_;
    lua_State* before_;
};

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

void pushAlone(lua_State* state, const automation::Error& error) noexcept {
    lua_settop(state, 0);
    pushError(state, error);
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
    const Running running(machine, state);
    int results = -1;
    try {
        results = body(state);
    } catch (const Raised&) {
        // Its value lies on the stack already.
    } catch (const automation::Error& error) {
        pushAlone(state, error);
    } catch (const std::exception& error) {
        pushAlone(state, {automation::errFail, error.what()});
    } catch (...) {
        pushAlone(state, {automation::errFail, "Unknown error"});
    }
    // A callback of the macro failed on the way, and the editor may have shown and forgotten that.
    return machine.failing ? takeFailure(state, machine) : results;
}

}  // namespace hx::lua
