#pragma once

#include <cstddef>
#include <lua.hpp>

namespace hx::lua {

/// What a Lua state takes, and how much it may take.
struct Memory {
    std::size_t limit = 0;  ///< bytes; 0 for no limit
    std::size_t used = 0;
};

/// From now on the state keeps within the memory, which is lent until the state is closed: what goes beyond it fails
/// with Lua's "not enough memory".
void limitMemory(lua_State* state, Memory& memory);

}  // namespace hx::lua
