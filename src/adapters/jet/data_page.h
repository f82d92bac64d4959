// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/page_cache.h"

namespace hx::jet {

/// A page of rows: of a table, of long values or of usage maps. The rows stand from the end of the page towards its
/// beginning; behind the head stands where each begins. A row's number is its place in that list and never changes.
class DataPage {
  public:
    static constexpr std::uint32_t headSize = 14;
    static constexpr std::uint32_t mostRows = 255;
    static constexpr std::uint32_t longestRow = 4060;
    /// A row that stands elsewhere: here is its Place. A row that is deleted, or that such a Place leads to.
    static constexpr std::uint16_t moved = 0x4000, hidden = 0x8000, gone = moved | hidden;

    /// Throws Damaged when it is no data page.
    explicit DataPage(PageRef page);
    /// Makes a page of zeros one. The owner is the page of the table's definition, or what stands in its place.
    static void make(const PageRef& page, std::uint32_t owner);

    static constexpr std::uint32_t longValueOwner = 0x4C41564C;  // "LVAL"
    [[nodiscard]] std::uint32_t owner() const noexcept { return get32(bytes() + 4); }

    [[nodiscard]] std::uint32_t rows() const noexcept { return rows_; }
    [[nodiscard]] std::uint16_t flags(std::uint32_t row) const noexcept { return slot(row) & gone; }
    /// Throws Damaged for a row that there is not.
    [[nodiscard]] std::span<Byte> row(std::uint32_t row) const;
    [[nodiscard]] bool isFree(std::uint32_t row) const;

    /// Between the list and the rows.
    [[nodiscard]] std::uint32_t freeSpace() const;
    [[nodiscard]] bool fits(std::uint32_t size) const;
    /// A new row of that size, whose bytes are anything, and its number.
    [[nodiscard]] std::uint32_t add(std::uint32_t size, std::uint16_t flags = 0);
    /// Whether the row can have that size here.
    [[nodiscard]] bool canResize(std::uint32_t row, std::uint32_t size) const;
    void resize(std::uint32_t row, std::uint32_t size);
    void setFlags(std::uint32_t row, std::uint16_t flags) noexcept;
    /// Its number may be given to another row.
    void remove(std::uint32_t row);

    [[nodiscard]] const PageRef& page() const noexcept { return page_; }
    /// Throws Damaged unless all rows lie beside each other.
    void check() const;

  private:
    [[nodiscard]] Byte* bytes() const noexcept { return page_.data(); }
    [[nodiscard]] std::uint16_t slot(std::uint32_t row) const noexcept {
        return get16(bytes() + headSize + std::size_t{row} * 2);
    }
    [[nodiscard]] std::uint32_t start(std::uint32_t row) const noexcept { return slot(row) & 0x1FFF; }
    [[nodiscard]] std::uint32_t end(std::uint32_t row) const noexcept { return row == 0 ? pageSize : start(row - 1); }
    void setStart(std::uint32_t row, std::uint32_t start) noexcept;
    void noteFreeSpace() noexcept;
    [[nodiscard]] std::uint32_t lowest() const noexcept { return rows_ == 0 ? pageSize : start(rows_ - 1); }
    [[nodiscard]] std::uint32_t listEnd() const noexcept { return headSize + rows_ * 2; }

    PageRef page_;
    std::uint32_t rows_;
};

}  // namespace hx::jet
