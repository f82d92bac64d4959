#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "cli/project_reader.h"
#include "recipe/inclusion_graph.h"

namespace hx::cli {

/// Which recipe of a project includes which. Recipes and inclusions are numbered from 0 in the order of the entries,
/// which are lent and must not change.
class RecipeGraph {
  public:
    static constexpr std::size_t deepest = 100;

    RecipeGraph(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions);

    [[nodiscard]] const RecipeEntry& recipe(std::size_t number) const { return recipes_[number]; }
    [[nodiscard]] std::optional<std::size_t> numberOf(std::int64_t id) const { return cli::numberOf(recipes_, id); }
    [[nodiscard]] std::vector<recipe::Branch> tree(std::size_t number) const;
    /// The recipes that contain one of these, the nearest first. Those wanted are among them when they are contained.
    [[nodiscard]] std::vector<recipe::Use> uses(const std::vector<std::size_t>& wanted) const;

  private:
    const std::vector<RecipeEntry>& recipes_;
    recipe::InclusionGraph graph_;
};

}  // namespace hx::cli
