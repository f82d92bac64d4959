#include "report/recipe_graph.h"

#include <algorithm>
#include <unordered_set>

#include "report/cycles.h"

namespace hx::report {

namespace {

/// Writes a tree from top to bottom.
class TreeWriter {
  public:
    explicit TreeWriter(const ProjectData& data) : data_(data) {}

    Tree write(std::size_t root) {
        way_.push_back(root);
        expand(root, 0);
        return std::move(tree_);
    }

  private:
    void expand(std::size_t recipe, std::uint64_t passing) {
        const auto& inclusions = data_.recipes()[recipe].subRecipes;
        for (const Inclusion& inclusion : inclusions) {
            if (tree_.branches.size() == RecipeGraph::mostBranches) {
                tree_.cut = true;
                return;
            }
            addBranch(inclusion, &inclusion == &inclusions.back(), passing);
        }
        written_.insert(recipe);
    }

    void addBranch(const Inclusion& inclusion, bool last, std::uint64_t passing) {
        const std::size_t depth = way_.size() - 1;
        const auto recipe = data_.find(inclusion.child);
        const BranchMark mark = markOf(recipe);
        tree_.branches.push_back({depth, &inclusion, recipe, mark, last, passing});
        if (mark != BranchMark::none) return;
        way_.push_back(*recipe);
        expand(*recipe, last ? passing : passing | std::uint64_t{1} << depth);
        way_.pop_back();
    }

    [[nodiscard]] BranchMark markOf(std::optional<std::size_t> recipe) const {
        if (!recipe) return BranchMark::missing;
        if (std::ranges::find(way_, *recipe) != way_.end()) return BranchMark::cycle;
        if (data_.recipes()[*recipe].subRecipes.empty()) return BranchMark::none;
        if (written_.contains(*recipe)) return BranchMark::repeated;
        return way_.size() >= RecipeGraph::deepest ? BranchMark::deeper : BranchMark::none;
    }

    const ProjectData& data_;
    Tree tree_;
    std::vector<std::size_t> way_;  // from the root to the recipe whose sub-recipes are being written
    std::unordered_set<std::size_t> written_;
};

void sortUnique(std::vector<std::size_t>& numbers) {
    std::ranges::sort(numbers);
    numbers.erase(std::ranges::unique(numbers).begin(), numbers.end());
}

}  // namespace

RecipeGraph::RecipeGraph(const ProjectData& data)
    : data_(data), children_(data.recipes().size()), parents_(data.recipes().size()) {
    for (std::size_t parent = 0; parent < children_.size(); ++parent) {
        for (const Inclusion& inclusion : data.recipes()[parent].subRecipes) {
            if (const auto child = data.find(inclusion.child)) children_[parent].push_back(*child);
        }
        sortUnique(children_[parent]);
        for (const std::size_t child : children_[parent]) parents_[child].push_back(parent);
    }
    inCycle_ = nodesInCycles(children_);
}

Tree RecipeGraph::tree(std::size_t recipe) const { return TreeWriter(data_).write(recipe); }

Uses RecipeGraph::uses(std::size_t recipe) const {
    Uses result{parents_[recipe], {}, false};
    std::unordered_set<std::size_t> seen(result.direct.begin(), result.direct.end());
    std::vector<std::size_t> waiting = result.direct;
    for (std::size_t at = 0; at < waiting.size() && !result.cut; ++at) {
        for (const std::size_t user : parents_[waiting[at]]) {
            if (!seen.insert(user).second) continue;
            result.cut = result.indirect.size() == mostIndirect;
            if (result.cut) break;
            result.indirect.push_back({user, waiting[at]});
            waiting.push_back(user);
        }
    }
    std::ranges::sort(result.indirect, {}, &IndirectUse::recipe);
    return result;
}

}  // namespace hx::report
