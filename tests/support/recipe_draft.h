// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "project/project_builder.h"

namespace hx::support {

struct SubRecipeDraft {
    std::int64_t child = 0;
    std::string fileVariable;
};

/// A recipe with its members, to make a project of.
struct RecipeDraft {
    std::int64_t id = 0;
    std::string name, fileNameVariable, descriptionVariable, filePath, fileExtension, comment, loadTrigger;
    double normFactor = 0;
    std::string factorVariable;
    bool enabled = false, saveSubRecipes = false, writeThrough = false;
    std::vector<std::string> variables;
    std::vector<SubRecipeDraft> subRecipes;

    [[nodiscard]] project::RecipeData data() const {
        project::RecipeData data;
        data.id = id;
        data.name = name;
        data.fileNameVariable = fileNameVariable;
        data.descriptionVariable = descriptionVariable;
        data.filePath = filePath;
        data.fileExtension = fileExtension;
        data.comment = comment;
        data.loadTrigger = loadTrigger;
        data.normFactor = normFactor;
        data.factorVariable = factorVariable;
        data.enabled = enabled;
        data.saveSubRecipes = saveSubRecipes;
        data.writeThrough = writeThrough;
        return data;
    }
};

/// A project of these recipes, and as many members of none.
inline project::ProjectData projectOf(const std::vector<RecipeDraft>& recipes, std::size_t orphans = 0) {
    project::ProjectBuilder builder;
    for (const RecipeDraft& recipe : recipes) builder.addRecipe(recipe.data());
    for (const RecipeDraft& recipe : recipes) {
        for (const std::string& variable : recipe.variables) builder.addMember(recipe.id, 0, variable);
        for (const SubRecipeDraft& sub : recipe.subRecipes) builder.addMember(recipe.id, sub.child, sub.fileVariable);
    }
    for (std::size_t i = 0; i < orphans; ++i) builder.addMember(-1, 0, "");
    return builder.build();
}

}  // namespace hx::support
