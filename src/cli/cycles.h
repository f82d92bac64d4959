#pragma once

#include <cstddef>
#include <vector>

namespace hx::cli {

/// The cycles of a directed graph, given by the nodes that each node leads to: for each group of nodes that reach each
/// other a shortest way from its lowest node back to it, that node once, at the front. In the order of these nodes.
[[nodiscard]] std::vector<std::vector<std::size_t>> cyclesOf(const std::vector<std::vector<std::size_t>>& targets);

}  // namespace hx::cli
