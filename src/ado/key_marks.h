// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>

#include "ado/row_keys.h"

namespace hx::ado {

/// A set of keys. Those of neighbouring rows take a bit each, so that a million of them fit into a cache.
class KeyMarks {
  public:
    /// False when it is there already.
    bool insert(Key key) {
        least_ = std::min(least_, key);
        most_ = std::max(most_, key);
        return change(words_[key >> shift], key, true);
    }
    /// False when it is not there.
    bool erase(Key key) {
        const auto word = words_.find(key >> shift);
        return word != words_.end() && change(word->second, key, false);
    }
    [[nodiscard]] bool contains(Key key) const {
        if (key < least_ || key > most_) return false;
        const auto word = words_.find(key >> shift);
        return word != words_.end() && (word->second & bitOf(key)) != 0;
    }
    [[nodiscard]] std::size_t size() const noexcept { return size_; }
    void clear() noexcept { *this = {}; }

  private:
    static constexpr int shift = 6;
    static std::uint64_t bitOf(Key key) noexcept { return std::uint64_t{1} << (key & 63); }
    bool change(std::uint64_t& word, Key key, bool there) noexcept {
        if (((word & bitOf(key)) != 0) == there) return false;
        word ^= bitOf(key);
        there ? ++size_ : --size_;
        return true;
    }

    std::unordered_map<Key, std::uint64_t> words_;
    std::size_t size_ = 0;
    Key least_ = std::numeric_limits<Key>::max(), most_ = std::numeric_limits<Key>::min();  // that ever were there
};

}  // namespace hx::ado
