// SPDX-License-Identifier: MIT
#include "adapters/jet/space.h"

#include <algorithm>

namespace hx::jet {

PageRef Space::allocate() {
    if (generation_ != pages_.generation()) {
        generation_ = pages_.generation();
        noneBelow_ = 2;
    }
    const std::uint32_t free = freePages(pages_).next(noneBelow_, pages_.count());
    noneBelow_ = free;
    PageRef page = free < pages_.count() ? pages_.write(free) : pages_.append();
    markUsed(pages_, page.number());
    std::memset(page.data(), 0, pageSize);
    return page;
}

void Space::release(std::uint32_t page) {
    const PageRef released = pages_.write(page);
    std::memset(released.data(), 0, pageSize);
    freePages(pages_).add(page);
    noneBelow_ = std::min(noneBelow_, page);
}

}  // namespace hx::jet
