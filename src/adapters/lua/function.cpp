// SPDX-License-Identifier: MIT
#include "adapters/lua/function_reference.h"
#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"
#include "adapters/lua/stack.h"
#include "automation/error.h"

namespace hx::lua {

namespace {

constexpr int slots = 4;

[[noreturn]] void fail() { throw automation::Error(automation::errFail, "The macro has failed"); }

/// Takes what lies above off the stack when the block ends.
class StackLevel {
  public:
    explicit StackLevel(lua_State* state) : state_(state), top_(lua_gettop(state)) {}
    ~StackLevel() { lua_settop(state_, top_); }
    StackLevel(const StackLevel&) = delete;
    StackLevel& operator=(const StackLevel&) = delete;
    [[nodiscard]] int top() const noexcept { return top_; }

  private:
    lua_State* state_;
    int top_;
};

void pushAll(lua_State* state, Values values) {
    protect(state, 0, static_cast<int>(values.size()), [&](lua_State* inner) {
        for (const Value& value : values) push(inner, value);
        return static_cast<int>(values.size());
    });
}

// The error waits until the call of the macro's returns that has led here: between the two lie functions of C++.
void keepFailure(lua_State* state, Machine& machine) {
    lua_rawseti(state, LUA_REGISTRYINDEX, machine.failure);
    machine.failing = true;
}

bool call(lua_State* state, int number, Values arguments) {
    try {
        lua_pushcfunction(state, &keepTraceback);
        const int handler = lua_gettop(state);
        lua_rawgeti(state, LUA_REGISTRYINDEX, number);
        pushAll(state, arguments);
        return lua_pcall(state, static_cast<int>(arguments.size()), 1, handler) == LUA_OK;
    } catch (const Raised&) {
        return false;
    }
}

}  // namespace

FunctionReference::~FunctionReference() {
    if (const auto owner = machine.lock()) luaL_unref(owner->current, LUA_REGISTRYINDEX, number);
}

Value Function::operator()(Values arguments) const {
    const auto machine = reference_->machine.lock();
    if (!machine || machine->failing || machine->stopping) fail();
    lua_State* const state = machine->current;
    if (lua_checkstack(state, slots) == 0) throw std::bad_alloc();
    const StackLevel level(state);
    try {
        if (call(state, reference_->number, arguments)) return valueAt(state, -1);
    } catch (const Raised&) {
        // In want of memory for what it returns.
    } catch (const OutOfMemory&) {
        pushError(state, automation::caughtError());
    }
    keepFailure(state, *machine);
    fail();
}

}  // namespace hx::lua
