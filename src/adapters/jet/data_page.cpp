// SPDX-License-Identifier: MIT
#include "adapters/jet/data_page.h"

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"

namespace hx::jet {

namespace {

constexpr Byte dataPageKind = 1;
constexpr std::size_t rowsAt = 12;
constexpr std::uint32_t slotSize = 2;

}  // namespace

DataPage::DataPage(PageRef page) : page_(std::move(page)), rows_(get16(page_.data() + rowsAt)) {
    require(bytes()[0] == dataPageKind, page_.number(), sentence::noDataPage);
    require(headSize + rows_ * slotSize <= pageSize, page_.number(), sentence::rowsOverlap);
}

void DataPage::make(const PageRef& page, std::uint32_t owner) {
    Byte* const bytes = page.data();
    std::memset(bytes, 0, pageSize);
    bytes[0] = dataPageKind;
    bytes[1] = 1;
    put16(bytes + 2, pageSize - headSize);
    put32(bytes + 4, owner);
}

std::span<Byte> DataPage::row(std::uint32_t row) const {
    require(row < rows_, page_.number(), sentence::noRow);
    const std::uint32_t from = start(row), to = end(row);
    require(from >= headSize + rows_ * slotSize && from <= to && to <= pageSize, page_.number(), sentence::rowsOverlap);
    return {bytes() + from, to - from};
}

bool DataPage::isFree(std::uint32_t row) const { return flags(row) == gone && this->row(row).empty(); }

std::uint32_t DataPage::freeSpace() const {
    require(lowest() <= pageSize && lowest() >= listEnd(), page_.number(), sentence::rowsOverlap);
    return lowest() - listEnd();
}

bool DataPage::fits(std::uint32_t size) const {
    return size + slotSize <= freeSpace() && (rows_ < mostRows || isFree(rows_ - 1));
}

// The number of a row that is gone is given away again: at the end, where no other row moves for it.
std::uint32_t DataPage::add(std::uint32_t size, std::uint16_t flags) {
    check();
    std::uint32_t row = rows_;
    while (row > 0 && isFree(row - 1)) --row;
    if (row == rows_) {
        require(slotSize + size <= freeSpace(), page_.number(), sentence::rowsOverlap);
        put16(bytes() + rowsAt, ++rows_);
        put16(bytes() + headSize + std::size_t{row} * slotSize, end(row));
    }
    resize(row, size);
    setFlags(row, flags);
    return row;
}

bool DataPage::canResize(std::uint32_t row, std::uint32_t size) const {
    const std::size_t now = this->row(row).size();
    return size <= now || size - now <= freeSpace();
}

void DataPage::resize(std::uint32_t row, std::uint32_t size) {
    check();
    const auto by = static_cast<std::int32_t>(size) - static_cast<std::int32_t>(this->row(row).size());
    const std::uint32_t first = lowest(), from = start(row);
    require(by <= 0 || static_cast<std::uint32_t>(by) <= freeSpace(), page_.number(), sentence::rowsOverlap);
    // The row keeps its first bytes, which stand at its lower end.
    const std::uint32_t kept = from - first + (by < 0 ? size : size - static_cast<std::uint32_t>(by));
    std::memmove(bytes() + static_cast<std::int32_t>(first) - by, bytes() + first, kept);
    for (std::uint32_t i = row; i < rows_; ++i) {
        setStart(i, static_cast<std::uint32_t>(static_cast<std::int32_t>(start(i)) - by));
    }
    noteFreeSpace();
}

void DataPage::setStart(std::uint32_t row, std::uint32_t start) noexcept {
    put16(bytes() + headSize + std::size_t{row} * slotSize, (slot(row) & gone) | start);
}

void DataPage::setFlags(std::uint32_t row, std::uint16_t flags) noexcept {
    put16(bytes() + headSize + std::size_t{row} * slotSize, start(row) | flags);
}

void DataPage::noteFreeSpace() noexcept { put16(bytes() + 2, lowest() - listEnd()); }

void DataPage::remove(std::uint32_t row) {
    resize(row, 0);
    setFlags(row, gone);
}

void DataPage::check() const {
    for (std::uint32_t i = 0; i < rows_; ++i) (void)row(i);
}

}  // namespace hx::jet
