#include "adapters/lua/memory.h"

#include <cstdlib>

namespace hx::lua {

namespace {

constexpr std::size_t kilobyte = 1024;

// For a new block Lua hands over its kind instead of a size.
void* allocate(void* data, void* block, std::size_t oldSize, std::size_t newSize) {
    Memory& memory = *static_cast<Memory*>(data);
    const std::size_t before = block == nullptr ? 0 : oldSize;
    if (newSize > before && memory.limit != 0 && memory.used + (newSize - before) > memory.limit) return nullptr;
    void* const result = newSize == 0 ? (std::free(block), nullptr) : std::realloc(block, newSize);
    if (result != nullptr || newSize == 0) memory.used = memory.used - before + newSize;
    return result;
}

}  // namespace

void limitMemory(lua_State* state, Memory& memory) {
    memory.used = static_cast<std::size_t>(lua_gc(state, LUA_GCCOUNT)) * kilobyte +
                  static_cast<std::size_t>(lua_gc(state, LUA_GCCOUNTB));
    lua_setallocf(state, allocate, &memory);
}

}  // namespace hx::lua
