#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "report/project_data.h"

namespace hx::report {

/// What is said of a branch of the sub-recipe tree that does not go on.
enum class BranchMark {
    none,
    cycle,     ///< the recipe is one of those that this branch has come through
    missing,   ///< there is no such recipe
    repeated,  ///< its sub-recipes stand further up in the same tree
    deeper     ///< its sub-recipes are too deep to be shown here; they stand with the recipe itself
};

/// One line of a sub-recipe tree.
struct Branch {
    std::size_t depth = 0;              ///< 0: a sub-recipe of the recipe itself
    const Inclusion* inclusion;         ///< lent by the data
    std::optional<std::size_t> recipe;  ///< its number; none when it is missing
    BranchMark mark = BranchMark::none;
    bool last = false;          ///< the last one of its recipe
    std::uint64_t passing = 0;  ///< bit d is set when a branch of depth d goes on below this line
};

/// The tree below a recipe, from top to bottom.
struct Tree {
    std::vector<Branch> branches;
    bool cut = false;  ///< there would be more
};

/// A recipe that contains another through one of its own sub-recipes.
struct IndirectUse {
    std::size_t recipe;
    std::size_t through;  ///< the sub-recipe that leads to it
};

/// Where a recipe is used, each list in the order of the recipes' numbers. A recipe in a cycle is found here itself.
struct Uses {
    std::vector<std::size_t> direct;
    std::vector<IndirectUse> indirect;  ///< without those that use it directly as well
    bool cut = false;                   ///< there would be more of the indirect ones
};

/// Which recipe includes which.
class RecipeGraph {
  public:
    static constexpr std::size_t mostBranches = 1000, mostIndirect = 1000, deepest = 24;

    /// The data is lent and must not change.
    explicit RecipeGraph(const ProjectData& data);

    [[nodiscard]] Tree tree(std::size_t recipe) const;
    [[nodiscard]] Uses uses(std::size_t recipe) const;
    /// Whether the recipe is contained in itself, directly or through others.
    [[nodiscard]] bool inCycle(std::size_t recipe) const { return inCycle_[recipe]; }

  private:
    const ProjectData& data_;
    std::vector<std::vector<std::size_t>> children_, parents_;  ///< without the missing ones, each once
    std::vector<bool> inCycle_;
};

}  // namespace hx::report
