// SPDX-License-Identifier: MIT
#include "adapters/jet/usage_map.h"

#include <algorithm>
#include <limits>

#include "adapters/jet/data_page.h"
#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/space.h"

namespace hx::jet {

namespace {

enum Form : Byte { bitsInRow = 0, bitsOnPages = 1 };

constexpr Byte mapPageKind = 5;
constexpr std::uint32_t mapHead = 4, nearHead = 5;
constexpr std::uint32_t pagesPerMap = (pageSize - mapHead) * 8;
constexpr std::uint32_t endless = std::numeric_limits<std::uint32_t>::max();

bool test(const Byte* bytes, std::uint32_t bit) noexcept { return (bytes[bit / 8] >> bit % 8 & 1) != 0; }

}  // namespace

void UsageMap::make(std::span<Byte> row) noexcept {
    std::ranges::fill(row, Byte{0});
    row[0] = bitsOnPages;
}

std::span<Byte> UsageMap::row(const PageRef& page) const {
    const std::span<Byte> row = DataPage(page).row(place_.row);
    require(row.size() >= nearHead && row[0] <= bitsOnPages, place_.page, sentence::noUsageMap);
    return row;
}

UsageMap::Bits UsageMap::bits(std::uint32_t page) const {
    const PageRef holder = pages_.read(place_.page);
    const std::span<Byte> row = this->row(holder);
    if (row[0] == bitsInRow) {
        const std::uint32_t first = get32(row.data() + 1);
        const auto count = static_cast<std::uint32_t>(row.size() - nearHead) * 8;
        if (page < first) return {{}, nullptr, 0, first};
        if (page - first >= count) return {{}, nullptr, page, endless - page};
        return {holder, row.data() + nearHead, first, count};
    }
    const std::uint32_t number = page / pagesPerMap, first = number * pagesPerMap;
    if (1 + (number + 1) * 4 > row.size()) return {{}, nullptr, first, endless - first};
    const std::uint32_t at = get32(row.data() + 1 + std::size_t{number} * 4);
    if (at == 0) return {{}, nullptr, first, pagesPerMap};
    const PageRef map = pages_.read(at);
    require(map.data()[0] == mapPageKind, at, sentence::noUsageMap);
    return {map, map.data() + mapHead, first, pagesPerMap};
}

bool UsageMap::contains(std::uint32_t page) const {
    const Bits bits = this->bits(page);
    if (bits.bytes == nullptr) return beyond_ == Beyond::in && bits.first > 0;
    return test(bits.bytes, page - bits.first);
}

std::uint32_t UsageMap::next(std::uint32_t page, std::uint32_t end) const {
    while (page < end) {
        const Bits bits = this->bits(page);
        if (bits.bytes == nullptr) {
            if (bits.count >= end - bits.first) return end;
            page = bits.first + bits.count;
            continue;
        }
        const std::uint32_t last = std::min(end - bits.first, bits.count);
        for (std::uint32_t bit = page - bits.first; bit < last; ++bit) {
            if (bit % 8 == 0 && bits.bytes[bit / 8] == 0) bit += 7;
            else if (test(bits.bytes, bit)) return bits.first + bit;
        }
        page = bits.first + last;
    }
    return end;
}

std::uint32_t UsageMap::previous(std::uint32_t page) const {
    while (page > 0) {
        const Bits bits = this->bits(page - 1);
        if (bits.bytes == nullptr) {
            page = bits.first;
            continue;
        }
        for (std::uint32_t bit = page - bits.first; bit > 0; --bit) {
            if (test(bits.bytes, bit - 1)) return bits.first + bit - 1;
        }
        page = bits.first;
    }
    return 0;
}

void UsageMap::set(std::uint32_t page, bool in) {
    PageRef holder = pages_.read(place_.page);
    std::span<Byte> row = this->row(holder);
    if (row[0] == bitsOnPages) return setFar(page, in);
    const std::uint32_t first = get32(row.data() + 1);
    const auto count = static_cast<std::uint32_t>(row.size() - nearHead) * 8;
    if (page >= first && page - first < count) {
        holder = pages_.write(place_.page);
        Byte& byte = this->row(holder)[nearHead + (page - first) / 8];
        const auto bit = static_cast<Byte>(1 << (page - first) % 8);
        byte = static_cast<Byte>(in ? byte | bit : byte & ~bit);
        return;
    }
    if (!in && beyond_ == Beyond::out) return;
    if (beyond_ == Beyond::out && std::ranges::all_of(row.subspan(nearHead), [](Byte byte) { return byte == 0; })) {
        holder = pages_.write(place_.page);
        put32(this->row(holder).data() + 1, page / 8 * 8);
        return set(page, in);
    }
    spread();
    setFar(page, in);
}

// From the bits of some pages to pages of bits.
void UsageMap::spread() {
    const PageRef holder = pages_.write(place_.page);
    const std::span<Byte> row = this->row(holder);
    require(row.size() >= rowSize, place_.page, sentence::noUsageMap);
    const std::uint32_t first = get32(row.data() + 1);
    const Buffer bits(row.begin() + nearHead, row.end());
    make(row);
    if (beyond_ == Beyond::in) {
        for (std::uint32_t page = 0; page < first; ++page) setFar(page, false);
    }
    for (std::uint32_t bit = 0; bit < bits.size() * 8; ++bit) {
        const bool in = test(bits.data(), bit);
        if (in != (beyond_ == Beyond::in)) setFar(first + bit, in);
    }
}

void UsageMap::setFar(std::uint32_t page, bool in) {
    const std::uint32_t number = page / pagesPerMap, bit = page % pagesPerMap;
    const PageRef map = mapPage(number);
    Byte& byte = map.data()[mapHead + bit / 8];
    const auto mask = static_cast<Byte>(1 << bit % 8);
    byte = static_cast<Byte>(in ? byte | mask : byte & ~mask);
}

PageRef UsageMap::mapPage(std::uint32_t number) {
    PageRef holder = pages_.read(place_.page);
    std::span<Byte> row = this->row(holder);
    require(1 + (number + 1) * 4 <= row.size(), place_.page, sentence::noUsageMap);
    if (const std::uint32_t at = get32(row.data() + 1 + std::size_t{number} * 4); at != 0) {
        require(at != place_.page && pages_.read(at).data()[0] == mapPageKind, at, sentence::noUsageMap);
        return pages_.write(at);
    }
    PageRef map = pages_.append();
    map.data()[0] = mapPageKind;
    map.data()[1] = 1;
    if (beyond_ == Beyond::in) std::memset(map.data() + mapHead, 0xFF, pageSize - mapHead);
    holder = pages_.write(place_.page);
    put32(this->row(holder).data() + 1 + std::size_t{number} * 4, map.number());
    Space::markUsed(pages_, map.number());
    return map;
}

}  // namespace hx::jet
