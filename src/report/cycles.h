#pragma once

#include <cstddef>
#include <vector>

namespace hx::report {

/// For each node of a directed graph, given by the nodes that it leads to: whether a way leads from it back to itself.
[[nodiscard]] std::vector<bool> nodesInCycles(const std::vector<std::vector<std::size_t>>& targets);

}  // namespace hx::report
