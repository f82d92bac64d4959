#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "project/reader.h"

namespace hx::project {

/// A sub-recipe in a recipe: the recipe that is included and the variable that names its file (may be empty).
struct SubRecipe {
    std::int64_t child = 0;
    std::string fileVariable;
};

/// One recipe with its members in the order in which they were added. A value that is missing in the database is empty,
/// false or 0.
struct RecipeData {
    std::int64_t id = 0;
    std::string name, fileNameVariable, descriptionVariable, filePath, fileExtension, comment;
    std::string loadTrigger, saveTrigger, readTrigger, writeTrigger;
    double normFactor = 0;  ///< 0: the values are absolute
    std::string factorVariable;
    bool enabled = false, saveSubRecipes = false, saveChanges = false, crypted = false;
    bool writeThrough = false, saveThrough = false;
    std::vector<std::string> variables;
    std::vector<SubRecipe> subRecipes;
};

/// All recipes of a project, ordered by name (OrderedName).
class ProjectData {
  public:
    ProjectData() = default;
    /// `orphans` counts the members whose recipe there is not.
    ProjectData(std::vector<RecipeData> recipes, std::size_t orphans);

    [[nodiscard]] const std::vector<RecipeData>& recipes() const noexcept { return recipes_; }
    /// The number in recipes() of the recipe with this ID.
    [[nodiscard]] std::optional<std::size_t> find(std::int64_t id) const;
    [[nodiscard]] std::size_t orphans() const noexcept { return orphans_; }

  private:
    std::vector<RecipeData> recipes_;
    std::unordered_map<std::int64_t, std::size_t> numbers_;
    std::size_t orphans_ = 0;
};

[[nodiscard]] ProjectData readProject(Reader& reader);

}  // namespace hx::project
