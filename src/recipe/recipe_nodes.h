// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/project_explorer.h"
#include "recipe/node_key.h"

/// The nodes of single recipes in the project explorer. The explorer's errors reach the caller.
namespace hx::recipe {

/// A recipe's node under the root of the branch, and under it the node of its sub-recipes.
class RecipeNodes {
  public:
    /// `subRecipesCaption` is the caption of every node of sub-recipes.
    RecipeNodes(host::ProjectExplorer& explorer, std::string subRecipesCaption)
        : explorer_(explorer), subRecipesCaption_(std::move(subRecipesCaption)) {}

    void add(std::int32_t id, std::string_view name);
    void rename(std::string_view key, std::string_view name);
    /// With its node of sub-recipes.
    void remove(std::string_view key);

  private:
    host::ProjectExplorer& explorer_;
    std::string subRecipesCaption_;
    std::string_view recipeImage_ = KeyImage(prefixRecipe), subRecipesImage_ = KeyImage(prefixSubRecipes);
};

}  // namespace hx::recipe
