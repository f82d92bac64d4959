// SPDX-License-Identifier: MIT
#include "support/memory_shortage.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace hx::support {

namespace {

thread_local long left = 0;  // blocks until the one that is refused; 0: none is

bool grants() { return left == 0 || --left > 0; }

}  // namespace

MemoryShortage::MemoryShortage(long at) { left = at; }
MemoryShortage::~MemoryShortage() { left = 0; }
bool MemoryShortage::came() { return left == 0; }

}  // namespace hx::support

void* operator new(std::size_t bytes) {
    void* block = hx::support::grants() ? std::malloc(bytes == 0 ? 1 : bytes) : nullptr;
    return block != nullptr ? block : throw std::bad_alloc();
}
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return hx::support::grants() ? std::malloc(bytes == 0 ? 1 : bytes) : nullptr;
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
