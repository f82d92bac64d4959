// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>

namespace hx::ado {

class KeyMarks;

/// Identifies a row of a table for as long as the row exists.
using Key = std::int64_t;

/// The ordered keys of a rowset: four bytes a key while every key fits into 32 bits, eight otherwise. Grows
/// without moving what it holds.
class RowKeys {
  public:
    void append(Key key) {
        if (!fitsNarrow(key) || !wide_.empty()) return appendWide(key);
        const auto value = static_cast<std::int32_t>(key);
        ascending_ = ascending_ && (narrow_.empty() || value > last_);
        last_ = value;
        narrow_.push_back(value);
    }
    void erase(std::size_t position);
    /// Leaves these keys out.
    void erase(const KeyMarks& keys);
    /// Puts the keys into ascending or descending order.
    void sort(bool descending);
    [[nodiscard]] std::size_t size() const noexcept { return narrow_.size() + wide_.size(); }
    [[nodiscard]] bool empty() const noexcept { return narrow_.empty() && wide_.empty(); }
    [[nodiscard]] Key operator[](std::size_t position) const noexcept {
        return wide_.empty() ? narrow_[position] : wide_[position];
    }
    /// True while every key is greater than the one before it.
    [[nodiscard]] bool ascending() const noexcept { return ascending_; }
    /// Where the key stands; fast while the keys ascend, else a walk that looks around `hint` first.
    [[nodiscard]] std::optional<std::size_t> find(Key key, std::size_t hint = 0) const;
    /// The first position whose key is not below `key`; only while the keys ascend.
    [[nodiscard]] std::size_t lowerBound(Key key) const;

  private:
    static bool fitsNarrow(Key key) noexcept {
        return key >= std::numeric_limits<std::int32_t>::min() && key <= std::numeric_limits<std::int32_t>::max();
    }
    void appendWide(Key key);

    std::deque<std::int32_t> narrow_;
    std::deque<Key> wide_;  // holds all keys once one is wide; narrow_ is then empty
    Key last_ = 0;          // of the last append
    bool ascending_ = true;
};

}  // namespace hx::ado
