// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "automation/key_index.h"

namespace hx::project {

/// Names that are looked up ignoring case, numbered from 0 in the order in which they are added. Made for a million of
/// them: all texts stand in one block of memory.
class NameSet {
  public:
    /// Gives the name's number, also when it is there already.
    std::size_t add(std::string_view name);
    [[nodiscard]] bool contains(std::string_view name);
    /// Fetches the memory that looking up this name soon will need.
    void prefetch(std::string_view name) { index_.prefetch(fold(name)); }

  private:
    /// Leaves the folded name in folded_; its hash.
    std::uint32_t fold(std::string_view name);
    [[nodiscard]] bool isFolded(std::size_t number) const;

    std::string texts_;              // folded, one after the other
    std::vector<std::size_t> ends_;  // of each text
    automation::KeyIndex index_;
    std::string folded_;
};

}  // namespace hx::project
