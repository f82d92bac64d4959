// SPDX-License-Identifier: MIT
#include "automation/key_index.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace hx::automation {

namespace {

constexpr std::size_t firstSize = 64;

}  // namespace

// FNV-1a: short keys take a few instructions. The last character is only added: keys that are counted up lie side by
// side, so that a branch of many is added without a cache miss for each.
std::uint32_t KeyIndex::hashOf(std::string_view key) noexcept {
    constexpr std::uint32_t start = 2166136261U;
    constexpr std::uint32_t prime = 16777619U;
    std::uint32_t hash = start;
    if (key.empty()) return hash;
    for (const char c : key.substr(0, key.size() - 1)) hash = (hash ^ static_cast<unsigned char>(c)) * prime;
    return hash + static_cast<unsigned char>(key.back());
}

void KeyIndex::erase(std::uint32_t hash, Id id) noexcept {
    std::size_t hole = hash & mask();
    while (slots_[hole].id != id) hole = (hole + 1) & mask();
    --count_;
    // Closing the gap keeps every later entry of the run reachable without a mark for "was taken".
    for (std::size_t next = (hole + 1) & mask(); slots_[next].id != none; next = (next + 1) & mask()) {
        const std::size_t home = slots_[next].hash & mask();
        const bool reachableOverHole = ((next - home) & mask()) >= ((next - hole) & mask());
        if (!reachableOverHole) continue;
        slots_[hole] = slots_[next];
        hole = next;
    }
    slots_[hole] = Slot{};
}

void KeyIndex::clear() noexcept {
    slots_.clear();
    count_ = 0;
}

void KeyIndex::place(Slot slot) noexcept {
    std::size_t at = slot.hash & mask();
    while (slots_[at].id != none) at = (at + 1) & mask();
    slots_[at] = slot;
}

void KeyIndex::reserve(std::size_t count) {
    const std::size_t size = std::max(firstSize, std::bit_ceil(count * 2));
    if (size <= slots_.size()) return;
    std::vector<Slot> old(size);
    old.swap(slots_);
    for (const Slot& slot : old) {
        if (slot.id != none) place(slot);
    }
}

}  // namespace hx::automation
