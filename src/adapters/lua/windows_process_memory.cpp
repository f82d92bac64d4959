// SPDX-License-Identifier: MIT
#include <malloc.h>
#include <windows.h>

#include "adapters/lua/process_memory.h"
// These headers need what that one says.
#include <psapi.h>

namespace hx::lua {

std::size_t processMemory() {
    PROCESS_MEMORY_COUNTERS counters{};
    return GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) ? counters.PagefileUsage : 0;
}

void giveBackMemory() { _heapmin(); }

}  // namespace hx::lua
