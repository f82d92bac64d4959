// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace hx::automation {

/// Finds numbers by the hash of a key: an open-addressing table that keeps a part of the hash beside each number, so
/// that a search touches almost no foreign key. The keys themselves stay with their owner, who compares them.
class KeyIndex {
  public:
    using Id = std::uint32_t;
    static constexpr Id none = std::numeric_limits<Id>::max();

    /// The number for which `matches(id)` holds among those with this hash; none when there is none.
    template <class Matches>
    [[nodiscard]] Id find(std::uint32_t hash, Matches matches) const {
        if (slots_.empty()) return none;
        for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
            const Slot& slot = slots_[at];
            if (slot.id == none) return none;
            if (slot.hash == hash && matches(slot.id)) return slot.id;
        }
    }

    /// Adds a number, unless there is one for which `matches` holds: gives that one, else none.
    template <class Matches>
    Id insert(std::uint32_t hash, Id id, Matches matches) {
        if ((count_ + 1) * 2 > slots_.size()) reserve(count_ + 1);
        std::size_t at = hash & mask();
        for (; slots_[at].id != none; at = (at + 1) & mask()) {
            if (slots_[at].hash == hash && matches(slots_[at].id)) return slots_[at].id;
        }
        slots_[at] = {hash, id};
        ++count_;
        return none;
    }
    /// Makes room for so many numbers.
    void reserve(std::size_t count);
    /// Fetches the memory that looking for this hash soon will need.
    void prefetch(std::uint32_t hash) const noexcept {
        if (!slots_.empty()) __builtin_prefetch(&slots_[hash & mask()]);
    }
    void erase(std::uint32_t hash, Id id) noexcept;  ///< must be there
    void clear() noexcept;
    [[nodiscard]] std::size_t size() const noexcept { return count_; }

    [[nodiscard]] static std::uint32_t hashOf(std::string_view key) noexcept;

  private:
    struct Slot {
        std::uint32_t hash = 0;
        Id id = none;
    };
    [[nodiscard]] std::size_t mask() const noexcept { return slots_.size() - 1; }
    void place(Slot slot) noexcept;

    std::vector<Slot> slots_;  ///< a power of two, at most half full
    std::size_t count_ = 0;
};

}  // namespace hx::automation
