// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "project/links.h"

namespace hx::project {

/// The cycles of a directed graph.
struct Cycles {
    /// For each group of nodes that reach each other a shortest way from its lowest node back to it, that node once, at
    /// the front. In the order of these nodes.
    std::vector<std::vector<std::size_t>> ways;
    std::vector<bool> nodes;  ///< for each node: whether a way leads from it back to itself
};

/// The graph is given by the nodes that each node leads to.
[[nodiscard]] Cycles cyclesOf(const Links& targets);

}  // namespace hx::project
