#include "report/cycles.h"

#include <algorithm>
#include <limits>

namespace hx::report {

namespace {

constexpr std::size_t unseen = std::numeric_limits<std::size_t>::max();

/// Tarjan's search for the nodes that can reach each other, without recursion: a chain may be as long as the project.
class Search {
  public:
    explicit Search(const std::vector<std::vector<std::size_t>>& targets)
        : targets_(targets),
          order_(targets.size(), unseen),
          lowest_(targets.size()),
          open_(targets.size()),
          found_(targets.size()) {}

    std::vector<bool> run() {
        for (std::size_t node = 0; node < targets_.size(); ++node) {
            if (order_[node] == unseen) follow(node);
        }
        return std::move(found_);
    }

  private:
    struct Step {
        std::size_t node, next;  // the number of the target to look at
    };

    void follow(std::size_t start) {
        enter(start);
        while (!way_.empty()) {
            auto& [node, next] = way_.back();
            if (next == targets_[node].size()) {
                leave();
                continue;
            }
            const std::size_t target = targets_[node][next++];
            if (target == node) found_[node] = true;
            if (order_[target] == unseen) enter(target);
            else if (open_[target]) lowest_[node] = std::min(lowest_[node], order_[target]);
        }
    }

    void enter(std::size_t node) {
        order_[node] = lowest_[node] = count_++;
        open_[node] = true;
        waiting_.push_back(node);
        way_.push_back({node, 0});
    }

    void leave() {
        const std::size_t node = way_.back().node;
        way_.pop_back();
        if (!way_.empty()) lowest_[way_.back().node] = std::min(lowest_[way_.back().node], lowest_[node]);
        if (lowest_[node] == order_[node]) closeGroup(node);
    }

    void closeGroup(std::size_t first) {
        const bool several = waiting_.back() != first;
        for (bool done = false; !done;) {
            const std::size_t node = waiting_.back();
            waiting_.pop_back();
            open_[node] = false;
            if (several) found_[node] = true;
            done = node == first;
        }
    }

    const std::vector<std::vector<std::size_t>>& targets_;
    std::vector<std::size_t> order_, lowest_;
    std::vector<bool> open_, found_;
    std::vector<std::size_t> waiting_;
    std::vector<Step> way_;
    std::size_t count_ = 0;
};

}  // namespace

std::vector<bool> nodesInCycles(const std::vector<std::vector<std::size_t>>& targets) { return Search(targets).run(); }

}  // namespace hx::report
