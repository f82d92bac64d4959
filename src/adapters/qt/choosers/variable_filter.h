// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hx::qt {

/// What the user types to find variables: words that must all stand somewhere in name, type or comment, and words with
/// "-" before them that must not. Case does not count; a "-" alone, and nothing, hold for all.
class VariableFilter {
  public:
    explicit VariableFilter(std::string_view text);
    [[nodiscard]] bool holdsForAll() const noexcept { return wanted_.empty() && unwanted_.empty(); }
    /// `folded` is VariableList::folded of a row.
    [[nodiscard]] bool matches(std::string_view folded) const;

  private:
    std::vector<std::string> wanted_, unwanted_;
};

}  // namespace hx::qt
