// SPDX-License-Identifier: MIT
#include "adapters/lua/engine.h"

#include <algorithm>

#include "adapters/lua/machine.h"
#include "adapters/lua/protect.h"
#include "adapters/lua/stack.h"
#include "adapters/lua/stop.h"

namespace hx::lua {

namespace {

constexpr int tableUpvalue = 2;

int callNative(lua_State* state) {
    const auto* native = static_cast<const Engine::Native*>(lua_touserdata(state, lua_upvalueindex(1)));
    const bool byColon = lua_rawequal(state, 1, lua_upvalueindex(tableUpvalue)) != 0;
    return give(state, (*native)(valuesFrom(state, byColon ? 2 : 1)));
}

std::string takeMessage(lua_State* state) {
    try {
        protect(state, 1, 1, [](lua_State* inner) {
            luaL_tolstring(inner, 1, nullptr);
            return 1;
        });
    } catch (const Raised&) {
        lua_settop(state, 0);
        return "The error cannot be shown";
    }
    std::string message = textAt(state, -1);
    lua_settop(state, 0);
    return message;
}

// As Lua reads files: without the mark of UTF-8, and without a first line that names the program for it. The end of
// that line stays, for the numbers of the others.
std::string_view codeOf(std::string_view text) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) text.remove_prefix(mark.size());
    if (text.starts_with('#')) text.remove_prefix(std::min(text.find('\n'), text.size()));
    return text;
}

void pushArguments(lua_State* state, const List& arguments) {
    protect(state, 0, 0, [&](lua_State* inner) {
        push(inner, arguments);
        lua_setglobal(inner, "arg");
        return 0;
    });
    protect(state, 0, static_cast<int>(arguments.size()), [&](lua_State* inner) {
        for (const Value& argument : arguments) push(inner, argument);
        return static_cast<int>(arguments.size());
    });
}

}  // namespace

std::string libraryVersion() { return LUA_RELEASE; }

Engine::Engine(EngineOptions options) : machine_(std::make_shared<Machine>(std::move(options))) {}

// Past the globals that are asked for: no macro runs yet that a request to stop could end here.
void Engine::define(const std::string& table, const std::string& name, Native function) {
    const Native* const kept = &machine_->natives.emplace_back(std::move(function));
    const auto action = [&](lua_State* state) {
        lua_pushglobaltable(state);
        lua_pushstring(state, table.c_str());
        if (lua_rawget(state, 1) != LUA_TTABLE) {
            lua_newtable(state);
            lua_pushvalue(state, -1);
            lua_setfield(state, 1, table.c_str());
            lua_replace(state, 2);
        }
        lua_pushlightuserdata(state, const_cast<Native*>(kept));
        lua_pushvalue(state, 2);
        lua_pushcclosure(state, guarded<callNative>, tableUpvalue);
        lua_setfield(state, 2, name.c_str());
        return 0;
    };
    try {
        protect(machine_->main, 0, 0, action);
    } catch (const Raised&) {
        lua_settop(machine_->main, 0);
        throw std::bad_alloc();
    }
}

void Engine::defineGlobal(const std::string& name, std::function<automation::Variant()> read) {
    machine_->globals[name] = std::move(read);
}

void Engine::run(const std::string& text, const std::string& name, const std::vector<std::string>& arguments) {
    lua_State* const state = machine_->main;
    machine_->traceback.clear();
    watch(state);
    lua_settop(state, 0);
    lua_pushcfunction(state, &keepTraceback);
    const std::string shown = "@" + name;
    const std::string_view code = codeOf(text);
    if (luaL_loadbufferx(state, code.data(), code.size(), shown.c_str(), "t") != LUA_OK) {
        throw MacroError(takeMessage(state), {});
    }
    try {
        pushArguments(state, List(arguments.begin(), arguments.end()));
    } catch (const Raised&) {
        throw MacroError(takeMessage(state), {});
    }
    if (lua_pcall(state, static_cast<int>(arguments.size()), 0, 1) != LUA_OK) {
        // Making the message can be a step of the macro's too.
        const std::string message = takeMessage(state);
        const bool isStopped = machine_->stopping;
        unwatch(state);
        if (isStopped) throw MacroError("The macro was stopped", machine_->traceback, true);
        throw MacroError(message, machine_->traceback);
    }
    unwatch(state);
    lua_settop(state, 0);
}

// The traceback is that of the call that returns.
void Engine::fail(const automation::Error& error) {
    lua_State* const state = machine_->current;
    if (failing() || lua_checkstack(state, 2) == 0) return;
    pushError(state, error);
    lua_rawseti(state, LUA_REGISTRYINDEX, machine_->failure);
    machine_->traceback.clear();
    machine_->failing = true;
}

bool Engine::stopRequested() noexcept { return isStopping(machine_->current); }

void Engine::charge(std::size_t bytes) { machine_->memory.charge(bytes); }

bool Engine::isFull() { return machine_->memory.isFull(machine_->current); }

bool Engine::failing() const noexcept { return machine_->failing || machine_->stopping; }

}  // namespace hx::lua
