#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "cli/project_reader.h"

namespace hx::cli {

/// One line of a sub-recipe tree, from top to bottom.
struct Branch {
    enum class Mark {
        none,
        missing,   ///< there is no such recipe
        cycle,     ///< one of the recipes that lead to this line
        repeated,  ///< its sub-recipes stand further up
        deeper     ///< its sub-recipes are too deep to be shown
    };
    std::size_t depth = 0;
    const Inclusion* inclusion = nullptr;
    Mark mark = Mark::none;
};

/// A recipe that contains a wanted one: `through` is its own sub-recipe that is wanted or leads to a wanted one.
struct Use {
    std::size_t recipe;
    std::size_t through;
};

/// Which recipe includes which. Recipes are numbered from 0 in the order of the entries, which are lent and must not
/// change.
class RecipeGraph {
  public:
    static constexpr std::size_t deepest = 100;

    RecipeGraph(const std::vector<RecipeEntry>& recipes, const std::vector<Inclusion>& inclusions);

    [[nodiscard]] const RecipeEntry& recipe(std::size_t number) const { return recipes_[number]; }
    [[nodiscard]] std::optional<std::size_t> numberOf(std::int64_t id) const;
    /// The members that are sub-recipes of the recipe.
    [[nodiscard]] const std::vector<const Inclusion*>& subRecipes(std::size_t number) const { return below_[number]; }
    [[nodiscard]] std::vector<Branch> tree(std::size_t number) const;
    /// The recipes that contain one of these, the nearest first. Those wanted are among them when they are contained.
    [[nodiscard]] std::vector<Use> uses(const std::vector<std::size_t>& wanted) const;
    /// Recipes that contain themselves: a shortest way around for each group of recipes that reach each other.
    [[nodiscard]] std::vector<std::vector<std::size_t>> cycles() const;

  private:
    const std::vector<RecipeEntry>& recipes_;
    std::unordered_map<std::int64_t, std::size_t> numbers_;
    std::vector<std::vector<const Inclusion*>> below_;
    std::vector<std::vector<std::size_t>> children_, parents_;  // without the missing ones
};

}  // namespace hx::cli
