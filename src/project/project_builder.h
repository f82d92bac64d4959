// SPDX-License-Identifier: MIT
#pragma once

#include "project/project_data.h"

namespace hx::project {

/// Puts a project together from its rows: all recipes first, then the members. Texts are lent for each call only.
class ProjectBuilder {
  public:
    /// Without its members. In any order.
    void addRecipe(RecipeData recipe);
    /// `child` is 0 for a variable.
    void addMember(std::int64_t parent, std::int64_t child, std::string_view text);
    /// Once.
    [[nodiscard]] ProjectData build();

  private:
    void orderRecipes();
    void linkVariables();
    void linkSubRecipes();

    ProjectData data_;
    std::vector<SubRecipe> subRecipes_;                          // as they were added
    std::vector<std::uint32_t> variableRecipes_, childRecipes_;  // whose member each one is
};

}  // namespace hx::project
