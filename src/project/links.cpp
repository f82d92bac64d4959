// SPDX-License-Identifier: MIT
#include "project/links.h"

namespace hx::project {

namespace {

// Where each node's numbers begin, and at last where the last one's end.
template <class List, class NodeOf>
std::vector<std::size_t> startsOf(std::size_t nodes, const List& list, NodeOf nodeOf) {
    std::vector<std::size_t> starts(nodes + 1);
    for (const auto& one : list) ++starts[nodeOf(one) + 1];
    for (std::size_t node = 1; node < nodes; ++node) starts[node + 1] += starts[node];
    return starts;
}

}  // namespace

Links::Links(std::size_t nodes, const std::vector<Link>& links)
    : starts_(startsOf(nodes, links, [](const Link& link) { return link.node; })), numbers_(links.size()) {
    std::vector<std::size_t> next(starts_);
    for (const Link& link : links) numbers_[next[link.node]++] = link.number;
}

Links::Links(std::size_t nodes, std::span<const std::uint32_t> nodeOfNumbers)
    : starts_(startsOf(nodes, nodeOfNumbers, [](std::uint32_t node) { return node; })), numbers_(nodeOfNumbers.size()) {
    std::vector<std::size_t> next(starts_);
    for (std::size_t number = 0; number < numbers_.size(); ++number) numbers_[next[nodeOfNumbers[number]]++] = number;
}

}  // namespace hx::project
