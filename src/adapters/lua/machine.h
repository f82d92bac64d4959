// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <lua.hpp>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "adapters/lua/engine.h"
#include "adapters/lua/memory.h"

namespace hx::lua {

/// What the functions of one Lua state share.
struct Machine : std::enable_shared_from_this<Machine> {
    explicit Machine(EngineOptions given);
    ~Machine();
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;
    static Machine& of(lua_State* state) noexcept;

    EngineOptions options;
    std::deque<Engine::Native> natives;  ///< never moved: Lua holds their addresses
    std::map<std::string, std::function<automation::Variant()>, std::less<>> globals;

    const void* objectType = nullptr;  ///< the metatables, to know values by
    const void* memberType = nullptr;
    const void* null = nullptr;  ///< the value `null`

    lua_State* main = nullptr;
    lua_State* current = nullptr;  ///< the thread that runs
    bool failing = false;          ///< a callback has failed; its error waits in the registry
    int failure = 0;               ///< where
    std::string traceback;         ///< of that error

    bool stopping = false;            ///< every step of the macro fails
    std::vector<lua_State*> waiting;  ///< the threads that wait for the one that runs, from the first
    Memory memory;

    void rememberTraceback(const char* text) noexcept;
};

/// Names of the metatables in the registry.
inline constexpr const char* objectTypeName = "hx.Object";
inline constexpr const char* memberTypeName = "hx.Member";
inline constexpr const char* errorTypeName = "hx.Error";
inline constexpr const char* nullName = "hx.null";

/// A message handler: keeps the error value, and where it happened in Machine::traceback.
int keepTraceback(lua_State* state);

}  // namespace hx::lua
