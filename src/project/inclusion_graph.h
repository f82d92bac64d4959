// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "project/cycles.h"
#include "project/links.h"

namespace hx::project {

/// What is said of a branch of the sub-recipe tree that does not go on.
enum class BranchMark {
    none,
    cycle,     ///< the recipe is one of those that this branch has come through
    missing,   ///< there is no such recipe
    repeated,  ///< its sub-recipes stand further up in the same tree
    deeper     ///< its sub-recipes are too deep to be shown
};

/// One line of a sub-recipe tree.
struct Branch {
    std::size_t depth = 0;              ///< 0: a sub-recipe of the recipe itself
    std::size_t inclusion = 0;          ///< its number
    std::optional<std::size_t> recipe;  ///< its number; none when it is missing
    BranchMark mark = BranchMark::none;
    bool last = false;  ///< the last one of its recipe
};

/// The tree below a recipe, from top to bottom.
struct Tree {
    std::vector<Branch> branches;
    bool cut = false;  ///< there would be more
};

/// A recipe that contains a wanted one: `through` is its own sub-recipe that is wanted or leads to a wanted one.
struct Use {
    std::size_t recipe;
    std::size_t through;
};

/// Where recipes are used, the nearest first. Those wanted are among them when they are contained.
struct Uses {
    std::vector<Use> list;
    std::size_t directCount = 0;  ///< so many at the front include a wanted one themselves
    bool cut = false;             ///< there would be more

    [[nodiscard]] std::span<const Use> direct() const { return std::span(list).first(directCount); }
    [[nodiscard]] std::span<const Use> indirect() const { return std::span(list).subspan(directCount); }
};

/// Which recipe includes which. Recipes and inclusions are known by their numbers, from 0.
class InclusionGraph {
  public:
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
    static constexpr std::size_t noRecipe = std::numeric_limits<std::size_t>::max();

    /// `noRecipe` stands for one that does not exist.
    struct Inclusion {
        std::size_t parent = noRecipe;
        std::size_t child = noRecipe;
    };
    struct TreeLimits {
        std::size_t depth;
        std::size_t branches = unlimited;
    };

    /// The sub-recipes of a recipe are in the order of the inclusions.
    InclusionGraph(std::size_t recipes, std::vector<Inclusion> inclusions);

    /// What is below a recipe, the sub-recipes of each recipe only once.
    [[nodiscard]] Tree tree(std::size_t recipe, TreeLimits limits) const;
    /// All that use one of these directly, and at most so many others.
    [[nodiscard]] Uses uses(const std::vector<std::size_t>& wanted, std::size_t mostIndirect = unlimited) const;
    /// The recipes that contain themselves.
    [[nodiscard]] Cycles cycles() const;

  private:
    std::vector<Inclusion> inclusions_;
    Links below_;    // the inclusions of each recipe, by number
    Links parents_;  // each recipe's, in ascending order
};

}  // namespace hx::project
