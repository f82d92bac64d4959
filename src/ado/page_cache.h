#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "ado/provider.h"

namespace hx::ado {

/// Some neighbouring rows of a key list, as they were read.
class Page : public RowSink {
  public:
    Page(std::size_t first, std::size_t count, std::size_t columns, ColumnMask mask);

    void row(std::size_t index, std::span<automation::Variant> values) override;

    [[nodiscard]] bool covers(std::size_t position) const noexcept { return position - first_ < present_.size(); }
    [[nodiscard]] bool holds(ColumnMask columns) const noexcept { return (columns & ~mask_) == 0; }
    [[nodiscard]] bool exists(std::size_t position) const noexcept { return present_[position - first_]; }
    [[nodiscard]] std::span<const automation::Variant> at(std::size_t position) const noexcept {
        return std::span(values_).subspan((position - first_) * columns_, columns_);
    }
    /// The row at `position` left the list.
    void erased(std::size_t position);
    [[nodiscard]] bool empty() const noexcept { return present_.empty(); }

  private:
    std::size_t first_;
    std::size_t columns_;
    ColumnMask mask_;
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
