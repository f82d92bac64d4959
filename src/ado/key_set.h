#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace hx::ado {

/// Identifies a row of a table for as long as the row exists.
using Key = std::int64_t;

/// The ordered keys of a rowset: four bytes a key while every key fits into 32 bits, eight otherwise. Grows
/// without moving what it holds.
class KeySet {
  public:
    void append(Key key);
    void erase(std::size_t position);
    [[nodiscard]] std::size_t size() const noexcept { return narrow_.size() + wide_.size(); }
    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    [[nodiscard]] Key operator[](std::size_t position) const noexcept;
    /// Where the key stands; fast while the keys ascend, else a walk that looks around `hint` first.
    [[nodiscard]] std::optional<std::size_t> find(Key key, std::size_t hint = 0) const;

  private:
    void widen();

    std::deque<std::int32_t> narrow_;
    std::deque<Key> wide_;  // holds all keys once one is wide; narrow_ is then empty
    bool ascending_ = true;
};

}  // namespace hx::ado
