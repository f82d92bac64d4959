// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "ado/provider.h"

namespace hx::ado {

/// Some neighbouring rows of a key list, as they were read: only the columns of the mask take space.
class Page : public RowSink {
  public:
    Page(std::size_t first, std::size_t count, std::size_t columns, ColumnMask mask);

    void row(std::size_t index, std::span<automation::Variant> values) override;

    [[nodiscard]] bool covers(std::size_t position) const noexcept { return position - first_ < present_.size(); }
    /// `columns` are columns that exist.
    [[nodiscard]] bool holds(ColumnMask columns) const noexcept { return (columns & ~mask_) == 0; }
    [[nodiscard]] bool exists(std::size_t position) const noexcept { return present_[position - first_]; }
    /// Of a column that the page holds.
    [[nodiscard]] const automation::Variant& value(std::size_t position, std::size_t column) const noexcept {
        return values_[(position - first_) * width_ + slot(column)];
    }
    /// The row at `position` left the list.
    void erased(std::size_t position);
    [[nodiscard]] bool empty() const noexcept { return present_.empty(); }

  private:
    // Where a column stands among those of the mask.
    [[nodiscard]] std::size_t slot(std::size_t column) const noexcept {
        const auto before = static_cast<std::size_t>(std::popcount(mask_ & (columnBit(column) - 1)));
        return column < sharedBit ? before : before + (column - sharedBit);
    }
    static constexpr std::size_t sharedBit = 63;  // stands for all columns from this number on

    std::size_t first_;
    ColumnMask mask_;
    std::vector<std::size_t> kept_;  // the columns of the mask
    std::size_t width_;              // their number
    std::vector<char> present_;
    std::vector<automation::Variant> values_;  // row by row
};

/// The pages of a key list that were used last.
class PageCache {
  public:
    static constexpr std::size_t rowsPerPage = 128;
    static constexpr std::size_t maxPages = 8;

    /// The page that covers `position` and holds the columns, or null.
    [[nodiscard]] const Page* find(std::size_t position, ColumnMask columns) {
        if (last_ < pages_.size() && pages_[last_].covers(position) && pages_[last_].holds(columns)) {
            return &pages_[last_];
        }
        return search(position, columns);
    }
    /// Adds a page in place of those that cover the same rows, and of the one that was not used longest.
    const Page& add(Page page, std::size_t position);
    void erased(std::size_t position);
    /// Forgets the page that covers `position`.
    void forget(std::size_t position);
    void clear() noexcept { pages_.clear(); }

  private:
    const Page* search(std::size_t position, ColumnMask columns);

    std::vector<Page> pages_;  // in order of use, newest last
    std::size_t last_ = 0;
};

}  // namespace hx::ado
