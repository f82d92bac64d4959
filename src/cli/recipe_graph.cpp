#include "cli/recipe_graph.h"

#include "cli/cycles.h"

namespace hx::cli {

namespace {

/// Goes down from one recipe, each recipe once. Without recursion: a chain may be as long as the project.
class TreeWalk {
  public:
    TreeWalk(const RecipeGraph& graph, std::size_t size) : graph_(graph), seen_(size), onWay_(size) {}

    std::vector<Branch> run(std::size_t start) {
        enter(start);
        while (!way_.empty()) {
            auto& [recipe, next] = way_.back();
            const auto& below = graph_.subRecipes(recipe);
            if (next == below.size()) {
                onWay_[recipe] = false;
                way_.pop_back();
            } else {
                visit(*below[next++]);
            }
        }
        return std::move(branches_);
    }

  private:
    struct Step {
        std::size_t recipe, next;
    };

    void visit(const Inclusion& inclusion) {
        const auto child = graph_.numberOf(inclusion.child);
        const Branch::Mark mark = markOf(child);
        branches_.push_back({way_.size() - 1, &inclusion, mark});
        if (mark == Branch::Mark::none) enter(*child);
    }

    [[nodiscard]] Branch::Mark markOf(std::optional<std::size_t> child) const {
        if (!child) return Branch::Mark::missing;
        if (onWay_[*child]) return Branch::Mark::cycle;
        const bool leaf = graph_.subRecipes(*child).empty();
        if (seen_[*child] && !leaf) return Branch::Mark::repeated;
        if (way_.size() >= RecipeGraph::deepest && !leaf) return Branch::Mark::deeper;
        return Branch::Mark::none;
    }

    void enter(std::size_t recipe) {
        seen_[recipe] = onWay_[recipe] = true;
        way_.push_back({recipe, 0});
    }

    const RecipeGraph& graph_;
    std::vector<bool> seen_, onWay_;
    std::vector<Step> way_;
    std::vector<Branch> branches_;
};

}  // namespace

RecipeGraph::RecipeGraph(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions)
    : recipes_(recipes), below_(recipes.size()), children_(recipes.size()), parents_(recipes.size()) {
    numbers_.reserve(recipes.size());
    for (std::size_t i = 0; i < recipes.size(); ++i) numbers_.emplace(recipes[i].id, i);
    for (const Inclusion& inclusion : inclusions) {
        const auto parent = numberOf(inclusion.parent);
        if (!parent) continue;
        below_[*parent].push_back(&inclusion);
        const auto child = numberOf(inclusion.child);
        if (!child) continue;
        children_[*parent].push_back(*child);
        parents_[*child].push_back(*parent);
    }
}

std::optional<std::size_t> RecipeGraph::numberOf(std::int64_t id) const {
    const auto found = numbers_.find(id);
    if (found == numbers_.end()) return std::nullopt;
    return found->second;
}

std::vector<Branch> RecipeGraph::tree(std::size_t number) const { return TreeWalk(*this, recipes_.size()).run(number); }

std::vector<Use> RecipeGraph::uses(const std::vector<std::size_t>& wanted) const {
    std::vector<Use> uses;
    std::vector<bool> found(recipes_.size());
    std::vector<bool> queued(recipes_.size());
    for (const std::size_t recipe : wanted) queued[recipe] = true;
    std::vector<std::size_t> front = wanted;
    for (std::size_t i = 0; i < front.size(); ++i) {
        for (const std::size_t parent : parents_[front[i]]) {
            if (found[parent]) continue;
            found[parent] = true;
            uses.push_back({parent, front[i]});
            if (!queued[parent]) front.push_back(parent);
        }
    }
    return uses;
}

std::vector<std::vector<std::size_t>> RecipeGraph::cycles() const { return cyclesOf(children_); }

}  // namespace hx::cli
