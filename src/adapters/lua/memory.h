// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <lua.hpp>

#include "automation/restore.h"

namespace hx::lua {

/// What a macro takes, and how much it may take: what its Lua state holds, what functions of C++ hold for it while they
/// run, and what else the program has come to hold since the macro began.
class Memory {
  public:
    std::size_t limit = 0;  ///< bytes; 0 for no limit

    /// From now on the state keeps within the limit, and lives no longer than this: what goes beyond it fails with
    /// Lua's "not enough memory".
    void limitState(lua_State* state);
    /// A macro begins.
    void begin();

    /// A function of C++ takes so many bytes for the macro, until it returns. Throws OutOfMemory.
    void charge(std::size_t bytes);
    /// Throws the same when the program has grown by more than the limit. Looks now and then.
    void requireRoom(lua_State* state);
    /// Whether it has; looks now.
    [[nodiscard]] bool isFull(lua_State* state);

    /// Ends the charges that have been made while it lived.
    [[nodiscard]] automation::Restore<std::size_t> charges() { return {charged_, charged_}; }

  private:
    static void* allocate(void* data, void* block, std::size_t oldSize, std::size_t newSize);
    [[nodiscard]] bool hasRoom(std::size_t bytes) const noexcept {
        return limit == 0 || used_ + charged_ + bytes <= limit;
    }

    std::size_t used_ = 0;     // by the state
    std::size_t charged_ = 0;  // by functions of C++ that run
    std::size_t before_ = 0;   // by the program, when the macro began
    std::size_t unseen_ = 0;   // charged since the program was last looked at
    int calls_ = 0;            // and so many calls
};

}  // namespace hx::lua
