// SPDX-License-Identifier: MIT

/// The blocks of memory that a program asks for while its main function runs, one of which the plan may refuse.
#include <cerrno>
#include <cstddef>

#include "torture/faults/next.h"
#include "torture/faults/plan.h"

extern "C" {
void* __libc_malloc(size_t bytes);
void* __libc_calloc(size_t count, size_t bytes);
void* __libc_realloc(void* block, size_t bytes);
}

namespace {

using Main = int (*)(int, char**, char**);
using Ending = void (*)();

Main programMain = nullptr;
bool counting = false;

// Only after the program has begun: what comes before, nothing could answer for.
int countedMain(int argc, char** argv, char** environment) {
    (void)hx::faults::plan();
    counting = hx::faults::plan().mode() == hx::faults::Plan::Mode::memory;
    const int result = programMain(argc, argv, environment);
    if (counting) hx::faults::plan().logBlocks();
    counting = false;
    return result;
}

bool grants() {
    if (!counting || hx::faults::plan().grants()) return true;
    errno = ENOMEM;
    return false;
}

}  // namespace

extern "C" {

void* malloc(size_t bytes) noexcept { return grants() ? __libc_malloc(bytes) : nullptr; }
void* calloc(size_t count, size_t bytes) noexcept { return grants() ? __libc_calloc(count, bytes) : nullptr; }
void* realloc(void* block, size_t bytes) noexcept { return grants() ? __libc_realloc(block, bytes) : nullptr; }

int __libc_start_main(Main main, int argc, char** argv, Ending init, Ending fini, Ending loaderFini, void* stackEnd) {
    programMain = main;
    using Start = int(Main, int, char**, Ending, Ending, Ending, void*);
    return hx::faults::next<Start>("__libc_start_main")(countedMain, argc, argv, init, fini, loaderFini, stackEnd);
}

}  // extern "C"
