// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/usage_map.h"

namespace hx::jet {

/// Gives away pages and takes them back.
class Space {
  public:
    explicit Space(Pages& pages) : pages_(pages) {}

    /// A page of zeros.
    [[nodiscard]] PageRef allocate();
    void release(std::uint32_t page);
    [[nodiscard]] bool isFree(std::uint32_t page) const { return freePages(pages_).contains(page); }

    /// The page has been appended and is used.
    static void markUsed(Pages& pages, std::uint32_t page) { freePages(pages).remove(page); }

  private:
    [[nodiscard]] static UsageMap freePages(Pages& pages) { return {pages, {1, 0}, UsageMap::Beyond::in}; }

    Pages& pages_;
    std::uint64_t generation_ = 0;
    std::uint32_t noneBelow_ = 0;  // no page below it is free, in this generation
};

}  // namespace hx::jet
