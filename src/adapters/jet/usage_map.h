// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/pages.h"

namespace hx::jet {

/// A set of pages: a row on a data page, which holds the bits of some hundred pages that follow each other, or the
/// numbers of pages full of bits.
class UsageMap {
  public:
    /// What is said of pages that the map does not cover.
    enum class Beyond : std::uint8_t { out, in };

    UsageMap(Pages& pages, Place place, Beyond beyond = Beyond::out) : pages_(pages), place_(place), beyond_(beyond) {}

    [[nodiscard]] bool contains(std::uint32_t page) const;
    void add(std::uint32_t page) { set(page, true); }
    void remove(std::uint32_t page) { set(page, false); }
    /// The first page from this one on, below `end`, of those that the map covers; `end` when there is none.
    [[nodiscard]] std::uint32_t next(std::uint32_t page, std::uint32_t end) const;
    /// The last page of the set below this one; 0 for none.
    [[nodiscard]] std::uint32_t previous(std::uint32_t page) const;

    /// The longest row that one takes, as new maps do.
    static constexpr std::uint32_t rowSize = 69;
    /// An empty map of the kind that covers all pages.
    static void make(std::span<Byte> row) noexcept;

  private:
    /// The bits of pages that follow each other; none when the map has none for the page.
    struct Bits {
        PageRef page;
        const Byte* bytes = nullptr;
        std::uint32_t first = 0, count = 0;
    };

    [[nodiscard]] std::span<Byte> row(const PageRef& page) const;
    [[nodiscard]] Bits bits(std::uint32_t page) const;
    void set(std::uint32_t page, bool in);
    void setFar(std::uint32_t page, bool in);
    void spread();
    [[nodiscard]] PageRef mapPage(std::uint32_t number);

    Pages& pages_;
    Place place_;
    Beyond beyond_;
};

}  // namespace hx::jet
