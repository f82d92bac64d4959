// SPDX-License-Identifier: MIT
#include "adapters/lua/memory.h"

#include <cstdlib>

#include "adapters/lua/engine.h"
#include "adapters/lua/process_memory.h"

namespace hx::lua {

namespace {

constexpr std::size_t kilobyte = 1024;
// Between two looks at the program: what one call takes is little beyond what it is given.
constexpr int mostCalls = 64;
constexpr std::size_t mostUnseen = kilobyte * kilobyte;

}  // namespace

// For a new block Lua hands over its kind instead of a size.
void* Memory::allocate(void* data, void* block, std::size_t oldSize, std::size_t newSize) {
    Memory& memory = *static_cast<Memory*>(data);
    const std::size_t before = block == nullptr ? 0 : oldSize;
    if (newSize > before && !memory.hasRoom(newSize - before)) return nullptr;
    void* const result = newSize == 0 ? (std::free(block), nullptr) : std::realloc(block, newSize);
    if (result != nullptr || newSize == 0) memory.used_ = memory.used_ - before + newSize;
    return result;
}

void Memory::limitState(lua_State* state) {
    used_ = static_cast<std::size_t>(lua_gc(state, LUA_GCCOUNT)) * kilobyte +
            static_cast<std::size_t>(lua_gc(state, LUA_GCCOUNTB));
    lua_setallocf(state, allocate, this);
}

void Memory::begin() {
    before_ = processMemory();
    unseen_ = 0;
    calls_ = 0;
}

void Memory::charge(std::size_t bytes) {
    if (!hasRoom(bytes)) throw OutOfMemory();
    charged_ += bytes;
    unseen_ += bytes;
}

void Memory::requireRoom(lua_State* state) {
    if (++calls_ < mostCalls && unseen_ < mostUnseen) return;
    if (isFull(state)) throw OutOfMemory();  // the next call looks again
    unseen_ = 0;
    calls_ = 0;
}

// What the macro has let go of counts only until somebody asks for it.
bool Memory::isFull(lua_State* state) {
    const auto grown = [this] { return limit != 0 && processMemory() > before_ + limit; };
    if (!grown()) return false;
    lua_gc(state, LUA_GCCOLLECT);
    giveBackMemory();
    return grown();
}

}  // namespace hx::lua
