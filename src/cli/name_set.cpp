#include "cli/name_set.h"

#include <cstring>
#include <functional>

#include "automation/text.h"

namespace hx::cli {

namespace {

constexpr std::size_t firstSlots = 1024;
constexpr int placeBits = 40;
constexpr std::uint64_t placeMask = (std::uint64_t{1} << placeBits) - 1;

/// What stands before each text.
struct Head {
    std::uint32_t length, number;
};

std::size_t hashOf(std::string_view text) { return std::hash<std::string_view>()(text); }
// The upper bits of the hash; the lower ones choose the slot.
std::uint64_t tagOf(std::size_t hash) { return hash & ~placeMask; }

}  // namespace

NameSet::NameSet() : texts_(1, '\0'), slots_(firstSlots) {}

std::size_t NameSet::add(std::string_view name) {
    const std::string_view folded = fold(name);
    const std::size_t hash = hashOf(folded);
    const std::size_t at = slotOf(folded, hash);
    if (slots_[at] != 0) return entryAt(slots_[at]).number;
    slots_[at] = tagOf(hash) | texts_.size();
    const Head head{static_cast<std::uint32_t>(folded.size()), static_cast<std::uint32_t>(count_)};
    texts_.append(reinterpret_cast<const char*>(&head), sizeof head).append(folded);
    if (++count_ * 2 > slots_.size()) grow();
    return head.number;
}

bool NameSet::contains(std::string_view name) {
    const std::string_view folded = fold(name);
    return slots_[slotOf(folded, hashOf(folded))] != 0;
}

void NameSet::prefetch(std::string_view name) { __builtin_prefetch(&slots_[hashOf(fold(name)) & (slots_.size() - 1)]); }

std::size_t NameSet::slotOf(std::string_view folded, std::size_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot slot = slots_[at];
        if (slot == 0 || ((slot & ~placeMask) == tagOf(hash) && entryAt(slot).text == folded)) return at;
    }
}

NameSet::Entry NameSet::entryAt(Slot slot) const {
    const char* place = texts_.data() + (slot & placeMask);
    Head head{};
    std::memcpy(&head, place, sizeof head);
    return {{place + sizeof head, head.length}, head.number};
}

void NameSet::grow() {
    std::vector<Slot> old(slots_.size() * 2);
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot slot : old) {
        if (slot == 0) continue;
        std::size_t at = hashOf(entryAt(slot).text) & mask;
        while (slots_[at] != 0) at = (at + 1) & mask;
        slots_[at] = slot;
    }
}

// Most names are ASCII throughout.
std::string_view NameSet::fold(std::string_view name) {
    buffer_.resize(name.size());
    bool ascii = true;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        ascii = ascii && (c & 0x80) == 0;
        buffer_[i] = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }
    if (!ascii) buffer_ = automation::foldCase(name);
    return buffer_;
}

}  // namespace hx::cli
