// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "bench/measure.h"

namespace hx::bench {

/// What a row must reach. A goal that is not set is not asked for.
struct Goal {
    std::optional<double> atMostMilliseconds = {};
    std::optional<double> atMostOfLimit = {};  ///< our time divided by the limit's
    std::optional<double> atLeastPeer = {};    ///< the peer's time divided by ours
    std::optional<double> atMostMegabytes = {};
    bool worstCounts = false;  ///< the slowest run has to reach it, not the median
};

/// One measured thing: ours, the peer's (a model of Qt) and the limit's (the C API alone).
struct Row {
    std::string name;
    Cost ours;
    Cost peer;
    Cost limit;
    Goal goal;
};

/// Prints the rows as a table; each with the goals that it has, and whether it reaches them.
void print(std::ostream& stream, const std::vector<Row>& rows);

/// One line of a table of growth.
struct GrowthLine {
    std::string size;
    std::vector<Cost> costs;
};

void print(std::ostream& stream, const std::string& title, const std::vector<std::string>& heads,
           const std::vector<GrowthLine>& lines);

}  // namespace hx::bench
