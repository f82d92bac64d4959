#include "cli/name_set.h"

#include <algorithm>
#include <functional>

#include "automation/text.h"

namespace hx::cli {

namespace {

constexpr std::size_t firstSlots = 1024;

std::uint32_t hashOf(std::string_view text) { return static_cast<std::uint32_t>(std::hash<std::string_view>()(text)); }

}  // namespace

NameSet::NameSet() : ends_{0}, slots_(firstSlots) {}

void NameSet::add(std::string_view name) {
    const std::string_view folded = fold(name);
    const std::uint32_t hash = hashOf(folded);
    const std::size_t at = slotOf(folded, hash);
    if (slots_[at].entry != 0) return;
    texts_.append(folded);
    ends_.push_back(texts_.size());
    slots_[at] = {hash, static_cast<std::uint32_t>(ends_.size() - 1)};
    if (ends_.size() * 2 > slots_.size()) grow();
}

bool NameSet::contains(std::string_view name) {
    const std::string_view folded = fold(name);
    return slots_[slotOf(folded, hashOf(folded))].entry != 0;
}

std::size_t NameSet::slotOf(std::string_view folded, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
        const Slot& slot = slots_[at];
        if (slot.entry == 0) return at;
        if (slot.hash != hash) continue;
        const std::size_t begin = ends_[slot.entry - 1];
        if (std::string_view(texts_).substr(begin, ends_[slot.entry] - begin) == folded) return at;
    }
}

void NameSet::grow() {
    std::vector<Slot> old(slots_.size() * 4);
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.entry == 0) continue;
        std::size_t at = slot.hash & mask;
        while (slots_[at].entry != 0) at = (at + 1) & mask;
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
