// SPDX-License-Identifier: MIT
#include "project/inclusion_graph.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace hx::project {

namespace {

using Inclusion = InclusionGraph::Inclusion;
constexpr std::size_t noRecipe = InclusionGraph::noRecipe;

/// Writes a tree from top to bottom.
class TreeWriter {
  public:
    TreeWriter(const std::vector<Inclusion>& inclusions, const Links& below, InclusionGraph::TreeLimits limits)
        : inclusions_(inclusions), below_(below), limits_(limits) {}

    Tree write(std::size_t root) {
        expand(root);
        return std::move(tree_);
    }

  private:
    void expand(std::size_t recipe) {
        way_.push_back(recipe);
        const auto inclusions = below_.of(recipe);
        for (std::size_t i = 0; i < inclusions.size(); ++i) {
            tree_.cut = tree_.branches.size() == limits_.branches;
            if (!tree_.cut) addBranch(inclusions[i], i + 1 == inclusions.size());
        }
        way_.pop_back();
        written_.insert(recipe);
    }

    void addBranch(std::size_t inclusion, bool last) {
        const std::size_t child = inclusions_[inclusion].child;
        const BranchMark mark = markOf(child);
        const auto recipe = child == noRecipe ? std::nullopt : std::optional(child);
        tree_.branches.push_back({way_.size() - 1, inclusion, recipe, mark, last});
        if (mark == BranchMark::none) expand(child);
    }

    [[nodiscard]] BranchMark markOf(std::size_t recipe) const {
        if (recipe == noRecipe) return BranchMark::missing;
        if (std::ranges::find(way_, recipe) != way_.end()) return BranchMark::cycle;
        if (below_.of(recipe).empty()) return BranchMark::none;
        if (written_.contains(recipe)) return BranchMark::repeated;
        return way_.size() >= limits_.depth ? BranchMark::deeper : BranchMark::none;
    }

    const std::vector<Inclusion>& inclusions_;
    const Links& below_;
    InclusionGraph::TreeLimits limits_;
    Tree tree_;
    std::vector<std::size_t> way_;  // from the root to the recipe whose sub-recipes are being written
    std::unordered_set<std::size_t> written_;
};

Links inclusionsOf(std::size_t recipes, const std::vector<Inclusion>& inclusions) {
    std::vector<Links::Link> links;
    links.reserve(inclusions.size());
    for (std::size_t i = 0; i < inclusions.size(); ++i) {
        if (inclusions[i].parent != noRecipe) links.push_back({inclusions[i].parent, i});
    }
    return {recipes, links};
}

// Recipe by recipe, so that the order does not hang on that of the inclusions.
Links parentsOf(const Links& below, const std::vector<Inclusion>& inclusions) {
    std::vector<Links::Link> links;
    links.reserve(inclusions.size());
    for (std::size_t recipe = 0; recipe < below.nodes(); ++recipe) {
        for (const std::size_t inclusion : below.of(recipe)) {
            const std::size_t child = inclusions[inclusion].child;
            if (child != noRecipe) links.push_back({child, recipe});
        }
    }
    return {below.nodes(), links};
}

}  // namespace

InclusionGraph::InclusionGraph(std::size_t recipes, std::vector<Inclusion> inclusions)
    : inclusions_(std::move(inclusions)),
      below_(inclusionsOf(recipes, inclusions_)),
      parents_(parentsOf(below_, inclusions_)) {}

Tree InclusionGraph::tree(std::size_t recipe, TreeLimits limits) const {
    return TreeWriter(inclusions_, below_, limits).write(recipe);
}

Uses InclusionGraph::uses(const std::vector<std::size_t>& wanted, std::size_t mostIndirect) const {
    Uses uses;
    std::unordered_set<std::size_t> found;
    std::vector<std::size_t> front = wanted;
    for (std::size_t at = 0; at < front.size(); ++at) {
        for (const std::size_t parent : parents_.of(front[at])) {
            if (!found.insert(parent).second) continue;
            uses.cut = at >= wanted.size() && uses.list.size() - uses.directCount == mostIndirect;
            if (uses.cut) break;
            uses.list.push_back({parent, front[at]});
            front.push_back(parent);
        }
        if (at < wanted.size()) uses.directCount = uses.list.size();
    }
    return uses;
}

Cycles InclusionGraph::cycles() const {
    std::vector<Links::Link> links;
    links.reserve(inclusions_.size());
    for (const Inclusion& inclusion : inclusions_) {
        if (inclusion.parent != noRecipe && inclusion.child != noRecipe)
            links.push_back({inclusion.parent, inclusion.child});
    }
    return cyclesOf({below_.nodes(), links});
}

}  // namespace hx::project
