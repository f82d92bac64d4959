// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace hx::project {

/// A list of numbers for each node of a graph, all of them in one block of memory.
class Links {
  public:
    struct Link {
        std::size_t node, number;
    };

    /// The numbers of a node stay in the order in which they are given.
    Links(std::size_t nodes, const std::vector<Link>& links);
    /// The numbers 0, 1, ... belong to the nodes of this list; each node's ascend.
    Links(std::size_t nodes, std::span<const std::uint32_t> nodeOfNumbers);

    [[nodiscard]] std::size_t nodes() const noexcept { return starts_.size() - 1; }
    [[nodiscard]] std::span<const std::size_t> of(std::size_t node) const {
        return {numbers_.data() + starts_[node], starts_[node + 1] - starts_[node]};
    }

  private:
    std::vector<std::size_t> starts_;  // one more than there are nodes
    std::vector<std::size_t> numbers_;
};

}  // namespace hx::project
