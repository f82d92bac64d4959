// SPDX-License-Identifier: MIT
#include "project/cycles.h"

#include <gtest/gtest.h>

namespace hx::project {
namespace {

using Ways = std::vector<std::vector<std::size_t>>;

Cycles cycles(const std::vector<std::vector<std::size_t>>& targets) {
    std::vector<Links::Link> links;
    for (std::size_t node = 0; node < targets.size(); ++node) {
        for (const std::size_t target : targets[node]) links.push_back({node, target});
    }
    return cyclesOf(Links(targets.size(), links));
}

TEST(Cycles, AreFoundOnceForEachGroup) {
    EXPECT_EQ(cycles({}).ways, Ways{});
    EXPECT_EQ(cycles({{1}, {2}, {}}).ways, Ways{});
    EXPECT_EQ(cycles({{0}, {1, 1}}).ways, (Ways{{0}, {1}}));
    EXPECT_EQ(cycles({{1}, {2}, {0, 3}, {4}, {3}}).ways, (Ways{{0, 1, 2}, {3, 4}}));
    EXPECT_EQ(cycles({{1, 2}, {2}, {0}}).ways, (Ways{{0, 2}}));  // the shorter way
}

TEST(Cycles, MayBeAsLongAsAProject) {
    constexpr std::size_t size = 200'000;
    std::vector<std::vector<std::size_t>> ring(size);
    for (std::size_t i = 0; i < size; ++i) ring[i] = {(i + 1) % size};
    const Cycles found = cycles(ring);
    ASSERT_EQ(found.ways.size(), 1U);
    EXPECT_EQ(found.ways[0].size(), size);
    EXPECT_EQ(found.nodes, std::vector<bool>(size, true));
}

// The nodes in cycles, as letters.
std::string nodesInCycles(const std::vector<std::vector<std::size_t>>& targets) {
    const std::vector<bool> nodes = cycles(targets).nodes;
    std::string names;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i]) names += static_cast<char>('A' + i);
    }
    return names;
}

TEST(Cycles, HoldTheNodesThatLeadBackToThemselvesAndNoOthers) {
    EXPECT_EQ(nodesInCycles({{1}, {2}, {}}), "");
    EXPECT_EQ(nodesInCycles({{0}, {0}}), "A");
    EXPECT_EQ(nodesInCycles({{1}, {2}, {1}, {1}}), "BC");
    EXPECT_EQ(nodesInCycles({{1}, {2}, {0}, {4}, {3}, {0, 3}}), "ABCDE");
    EXPECT_EQ(nodesInCycles({{1, 2}, {3}, {3}, {}}), "");
    EXPECT_EQ(nodesInCycles({{1, 2}, {3}, {0}, {1}}), "ABCD");
}

TEST(Links, KeepTheirOrderAtEachNode) {
    const Links links(3, {{2, 7}, {0, 5}, {2, 1}, {2, 7}});
    const auto numbers = [&](std::size_t node) {
        return std::vector<std::size_t>(links.of(node).begin(), links.of(node).end());
    };
    EXPECT_EQ(links.nodes(), 3U);
    EXPECT_EQ(numbers(0), (std::vector<std::size_t>{5}));
    EXPECT_EQ(numbers(1), std::vector<std::size_t>{});
    EXPECT_EQ(numbers(2), (std::vector<std::size_t>{7, 1, 7}));
}

}  // namespace
}  // namespace hx::project
