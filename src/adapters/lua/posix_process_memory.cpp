// SPDX-License-Identifier: MIT
#include "adapters/lua/process_memory.h"

#ifdef __SANITIZE_ADDRESS__
// The compiler ships the function without its header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <cstdio>
#include <malloc.h>
#include <memory>
#include <unistd.h>
#endif

namespace hx::lua {

#ifdef __SANITIZE_ADDRESS__

// The sanitizer keeps what is given up for a while, to find whoever uses it still.
std::size_t processMemory() { return __sanitizer_get_current_allocated_bytes(); }
void giveBackMemory() {}

#else

// Pages in memory, less those that are a file's or shared with others.
std::size_t processMemory() {
    const auto close = [](std::FILE* file) { std::fclose(file); };
    const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen("/proc/self/statm", "re"));
    std::size_t all = 0, resident = 0, shared = 0;
    if (!file || std::fscanf(file.get(), "%zu %zu %zu", &all, &resident, &shared) != 3) return 0;
    return (resident - shared) * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}
void giveBackMemory() { malloc_trim(0); }

#endif

}  // namespace hx::lua
