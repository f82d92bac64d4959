// SPDX-License-Identifier: MIT
#include "adapters/jet/index_page.h"

#include <algorithm>
#include <bit>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"

namespace hx::jet {

namespace {

constexpr Byte nodeKind = 3, leafKind = 4;
constexpr std::size_t freeAt = 2, tableAt = 4, sharedAt = 24, maskAt = 27, maskSize = 453;

int compareBytes(Bytes a, Bytes b) noexcept {
    const std::size_t size = std::min(a.size(), b.size());
    return size == 0 ? 0 : std::memcmp(a.data(), b.data(), size);
}

std::uint32_t commonPrefix(Bytes a, Bytes b) noexcept {
    return static_cast<std::uint32_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

}  // namespace

IndexPage::IndexPage(PageRef page, std::uint32_t table) : page_(std::move(page)) {
    const Byte kind = bytes()[0];
    require((kind == nodeKind || kind == leafKind) && get32(bytes() + tableAt) == table, page_.number(),
            sentence::noIndexPage);
    if (!page_.frame().hasEnds) readEnds();
}

void IndexPage::make(const PageRef& page, std::uint32_t table, bool isLeaf) noexcept {
    std::memset(page.data(), 0, pageSize);
    page.frame().hasEnds = false;
    page.data()[0] = isLeaf ? leafKind : nodeKind;
    page.data()[1] = 1;
    put16(page.data() + freeAt, room);
    put32(page.data() + tableAt, table);
}

bool IndexPage::isLeaf() const noexcept { return bytes()[0] == leafKind; }

// A bit for each byte of the entries: set where an entry ends.
void IndexPage::readEnds() {
    std::vector<std::uint16_t>& ends = this->ends();
    ends.clear();
    for (std::size_t at = 0; at < maskSize; at += sizeof(std::uint64_t)) {
        Byte word[sizeof(std::uint64_t)] = {};
        std::memcpy(word, bytes() + maskAt + at, std::min(sizeof word, maskSize - at));
        for (std::uint64_t bits = get64(word); bits != 0; bits &= bits - 1) {
            const auto end = static_cast<std::uint32_t>(at * 8) + static_cast<std::uint32_t>(std::countr_zero(bits));
            require(end > used() && end <= room, page_.number(), sentence::noIndexPage);
            ends.push_back(static_cast<std::uint16_t>(end));
        }
    }
    const std::uint32_t shared = sharedSize();
    require(ends.empty() || (shared <= ends[0] && ends[0] > tailSize()), page_.number(), sentence::noIndexPage);
    for (std::size_t i = 1; i < ends.size(); ++i) {
        require(shared + ends[i] - ends[i - 1] > tailSize(), page_.number(), sentence::noIndexPage);
    }
    page_.frame().hasEnds = true;
}

void IndexPage::writeEnds() noexcept {
    Byte* const mask = bytes() + maskAt;
    std::memset(mask, 0, maskSize);
    for (const std::uint16_t end : ends()) mask[end / 8] = static_cast<Byte>(mask[end / 8] | 1 << end % 8);
    put16(bytes() + freeAt, room - used());
}

IndexPage::Entry IndexPage::entry(std::uint32_t number) const noexcept {
    const std::uint32_t from = start(number);
    const Bytes own(area() + from, ends()[number] - from);
    return {number == 0 ? Bytes() : Bytes(area(), sharedSize()), own};
}

Place IndexPage::place(std::uint32_t number) const noexcept {
    const Entry entry = this->entry(number);
    const std::size_t at = entry.size() - tailSize();
    Byte bytes[placeSize];
    for (std::size_t i = 0; i < placeSize; ++i) {
        const std::size_t byte = at + i;
        bytes[i] = byte < entry.shared.size() ? entry.shared[byte] : entry.own[byte - entry.shared.size()];
    }
    return Place::of(getBig32(bytes));
}

std::uint32_t IndexPage::child(std::uint32_t number) const noexcept {
    const Entry entry = this->entry(number);
    Byte bytes[childSize];
    for (std::size_t i = 0; i < childSize; ++i) {
        const std::size_t byte = entry.size() - childSize + i;
        bytes[i] = byte < entry.shared.size() ? entry.shared[byte] : entry.own[byte - entry.shared.size()];
    }
    return getBig32(bytes);
}

void IndexPage::appendKey(Buffer& to, std::uint32_t number) const {
    entry(number).appendTo(to);
    if (!isLeaf()) to.resize(to.size() - childSize);
}

int IndexPage::compare(std::uint32_t number, Bytes keyAndPlace) const noexcept {
    const Entry entry = this->entry(number);
    if (const int order = compareBytes(entry.shared, keyAndPlace); order != 0) return order;
    const std::size_t size = entry.size() - (isLeaf() ? 0 : childSize);
    if (keyAndPlace.size() > entry.shared.size() && size > entry.shared.size()) {
        const Bytes own = entry.own.first(size - entry.shared.size());
        if (const int order = compareBytes(own, keyAndPlace.subspan(entry.shared.size())); order != 0) return order;
    }
    return size < keyAndPlace.size() ? -1 : size > keyAndPlace.size() ? 1 : 0;
}

std::uint32_t IndexPage::find(Bytes keyAndPlace) const noexcept {
    std::uint32_t from = 0, to = entries();
    while (from < to) {
        const std::uint32_t middle = (from + to) / 2;
        if (compare(middle, keyAndPlace) < 0) from = middle + 1;
        else to = middle;
    }
    return from;
}

bool IndexPage::equals(std::uint32_t number, Bytes keyAndPlace) const noexcept {
    return compare(number, keyAndPlace) == 0;
}

bool IndexPage::equalsKey(std::uint32_t number, Bytes key) const noexcept {
    const Entry entry = this->entry(number);
    if (entry.size() - tailSize() != key.size()) return false;
    const std::size_t shared = std::min(entry.shared.size(), key.size());
    return compareBytes(entry.shared, key) == 0 && compareBytes(entry.own, key.subspan(shared)) == 0;
}

// All but the first stand without what is shared: so the place of a new first entry is behind that, too.
bool IndexPage::insert(std::uint32_t number, Bytes entry) {
    std::vector<std::uint16_t>& ends = this->ends();
    const std::uint32_t shared = ends.empty() ? 0 : sharedSize();
    if (entry.size() <= shared) return false;
    if (shared > 0 && std::memcmp(area(), entry.data(), shared) != 0) return false;
    const Bytes own = entry.subspan(shared);
    if (used() + own.size() > room) return false;
    const std::uint32_t at = number == 0 ? shared : start(number), all = used();
    const auto by = static_cast<std::uint16_t>(own.size());
    ends.insert(ends.begin() + number, static_cast<std::uint16_t>(at));
    for (std::size_t i = number; i < ends.size(); ++i) ends[i] = static_cast<std::uint16_t>(ends[i] + by);
    std::memmove(area() + at + by, area() + at, all - at);
    std::memcpy(area() + at, own.data(), own.size());
    if (ends.size() == 1) put16(bytes() + sharedAt, 0);
    writeEnds();
    return true;
}

void IndexPage::erase(std::uint32_t number) {
    std::vector<std::uint16_t>& ends = this->ends();
    const std::uint32_t at = number == 0 ? (ends.size() == 1 ? 0 : sharedSize()) : start(number), end = ends[number];
    std::memmove(area() + at, area() + end, used() - end);
    ends.erase(ends.begin() + number);
    for (std::size_t i = number; i < ends.size(); ++i) ends[i] = static_cast<std::uint16_t>(ends[i] - (end - at));
    if (ends.empty()) put16(bytes() + sharedAt, 0);
    writeEnds();
}

std::vector<Buffer> IndexPage::all() const {
    std::vector<Buffer> entries(ends().size());
    for (std::uint32_t i = 0; i < entries.size(); ++i) entry(i).appendTo(entries[i]);
    return entries;
}

bool IndexPage::assign(std::span<const Buffer> entries) {
    const auto key = [&](const Buffer& entry) { return Bytes(entry).first(entry.size() - tailSize()); };
    const std::uint32_t shared = entries.size() < 2 ? 0 : commonPrefix(key(entries.front()), key(entries.back()));
    std::size_t size = shared;
    for (const Buffer& entry : entries) size += entry.size() - shared;
    if (size > room) return false;
    std::vector<std::uint16_t>& ends = this->ends();
    ends.reserve(entries.size());
    ends.clear();
    put16(bytes() + sharedAt, shared);
    std::uint32_t at = 0;
    for (const Buffer& entry : entries) {
        const Bytes own = Bytes(entry).subspan(ends.empty() ? 0 : shared);
        std::memcpy(area() + at, own.data(), own.size());
        at += static_cast<std::uint32_t>(own.size());
        ends.push_back(static_cast<std::uint16_t>(at));
    }
    std::memset(area() + at, 0, room - at);
    writeEnds();
    return true;
}

}  // namespace hx::jet
