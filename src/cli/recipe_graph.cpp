#include "cli/recipe_graph.h"

namespace hx::cli {

using recipe::InclusionGraph;

namespace {

std::vector<InclusionGraph::Inclusion> numbered(const std::vector<RecipeEntry>& recipes,
                                                const std::vector<Inclusion>& inclusions) {
    std::vector<InclusionGraph::Inclusion> result;
    result.reserve(inclusions.size());
    for (const Inclusion& inclusion : inclusions) {
        result.push_back({numberOf(recipes, inclusion.parent).value_or(InclusionGraph::noRecipe),
                          numberOf(recipes, inclusion.child).value_or(InclusionGraph::noRecipe)});
    }
    return result;
}

}  // namespace

RecipeGraph::RecipeGraph(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions)
    : recipes_(recipes), graph_(recipes.size(), numbered(recipes, inclusions)) {}

std::vector<recipe::Branch> RecipeGraph::tree(std::size_t number) const {
    return graph_.tree(number, {.depth = deepest}).branches;
}

std::vector<recipe::Use> RecipeGraph::uses(const std::vector<std::size_t>& wanted) const {
    return graph_.uses(wanted).list;
}

}  // namespace hx::cli
