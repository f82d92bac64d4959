// SPDX-License-Identifier: MIT
#include "project/cycles.h"

#include <algorithm>
#include <limits>

namespace hx::project {

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

/// Gives each node the number of its group (Tarjan), without recursion: a chain may be as long as the project.
class Groups {
  public:
    explicit Groups(const Links& targets)
        : targets_(targets), order_(targets.nodes(), none), lowest_(targets.nodes()), group_(targets.nodes(), none) {}

    std::vector<std::size_t> run() {
        for (std::size_t node = 0; node < targets_.nodes(); ++node) {
            if (order_[node] == none) follow(node);
        }
        return std::move(group_);
    }

  private:
    struct Step {
        std::size_t node, next;
    };

    void follow(std::size_t start) {
        enter(start);
        while (!way_.empty()) {
            auto& [node, next] = way_.back();
            const auto targets = targets_.of(node);
            if (next == targets.size()) {
                leave();
                continue;
            }
            const std::size_t target = targets[next++];
            if (order_[target] == none) enter(target);
            else if (group_[target] == none) lowest_[node] = std::min(lowest_[node], order_[target]);
        }
    }

    void enter(std::size_t node) {
        order_[node] = lowest_[node] = count_++;
        waiting_.push_back(node);
        way_.push_back({node, 0});
    }

    void leave() {
        const std::size_t node = way_.back().node;
        way_.pop_back();
        if (!way_.empty()) lowest_[way_.back().node] = std::min(lowest_[way_.back().node], lowest_[node]);
        if (lowest_[node] != order_[node]) return;
        for (std::size_t member = none; member != node;) {
            member = waiting_.back();
            waiting_.pop_back();
            group_[member] = groups_;
        }
        ++groups_;
    }

    const Links& targets_;
    std::vector<std::size_t> order_, lowest_, group_;
    std::vector<std::size_t> waiting_;
    std::vector<Step> way_;
    std::size_t count_ = 0, groups_ = 0;
};

// The nodes from `start` to the one that leads back to it, all of one group; empty when there is no way.
std::vector<std::size_t> wayAround(const Links& targets, const std::vector<std::size_t>& group, std::size_t start,
                                   std::vector<std::size_t>& from) {
    std::vector<std::size_t> front = {start};
    for (std::size_t i = 0; i < front.size(); ++i) {
        for (const std::size_t target : targets.of(front[i])) {
            if (target == start) {
                std::vector<std::size_t> way;
                for (std::size_t node = front[i]; node != start; node = from[node]) way.push_back(node);
                way.push_back(start);
                std::reverse(way.begin(), way.end());
                return way;
            }
            if (group[target] != group[start] || from[target] != none) continue;
            from[target] = front[i];
            front.push_back(target);
        }
    }
    return {};
}

}  // namespace

Cycles cyclesOf(const Links& targets) {
    const std::vector<std::size_t> group = Groups(targets).run();
    Cycles cycles{{}, std::vector<bool>(targets.nodes())};
    std::vector<bool> done(targets.nodes()), cyclic(targets.nodes());  // by the number of the group
    std::vector<std::size_t> from(targets.nodes(), none);
    for (std::size_t node = 0; node < targets.nodes(); ++node) {
        if (!done[group[node]]) {
            done[group[node]] = true;
            auto way = wayAround(targets, group, node, from);
            cyclic[group[node]] = !way.empty();
            if (!way.empty()) cycles.ways.push_back(std::move(way));
        }
        cycles.nodes[node] = cyclic[group[node]];
    }
    return cycles;
}

}  // namespace hx::project
