// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hx::automation {

/// What the user types to find texts: words that must all stand somewhere in one, and words with "-" before them that
/// must not. Case does not count; a "-" alone, and nothing, hold for all.
class WordFilter {
  public:
    WordFilter() = default;
    explicit WordFilter(std::string_view text);
    /// The text without case.
    [[nodiscard]] bool matches(std::string_view folded) const;
    [[nodiscard]] bool holdsForAll() const noexcept { return wanted_.empty() && unwanted_.empty(); }

  private:
    std::vector<std::string> wanted_, unwanted_;
};

}  // namespace hx::automation
