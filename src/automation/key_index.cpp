// SPDX-License-Identifier: MIT
#include "automation/key_index.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace hx::automation {

namespace {

constexpr std::size_t firstSize = 64;

}  // namespace

// Eight bytes at a time, each multiplied and its high half, which depends on all of them, brought down. The last
// character is only added: keys that are counted up lie side by side, so that a branch of many is added without a cache
// miss for each.
std::uint32_t KeyIndex::hashOf(std::string_view key) noexcept {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;  // 2^64 by the golden ratio
    std::uint64_t hash = key.size();
    if (key.empty()) return 0;
    const auto mix = [&](std::size_t at, std::size_t bytes) {
        std::uint64_t word = 0;
        std::memcpy(&word, key.data() + at, bytes);
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32U;
    };
    const std::size_t mixed = key.size() - 1;
    std::size_t at = 0;
    for (; at + sizeof hash <= mixed; at += sizeof hash) mix(at, sizeof hash);
    mix(at, mixed - at);
    return static_cast<std::uint32_t>(hash) + static_cast<unsigned char>(key.back());
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
