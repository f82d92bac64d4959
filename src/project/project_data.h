// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "automation/packed_texts.h"
#include "automation/text_list.h"
#include "project/links.h"
#include "project/reader.h"

namespace hx::project {

/// A sub-recipe in a recipe: the recipe that is included and the variable that names its file (may be empty).
struct SubRecipe {
    std::int64_t child = 0;
    std::string_view fileVariable;
};

/// One recipe with its members in the order in which they were added. A value that is missing in the database is empty,
/// false or 0. What it refers to is its ProjectData's.
struct RecipeData {
    std::int64_t id = 0;
    std::string_view name, fileNameVariable, descriptionVariable, filePath, fileExtension, comment;
    std::string_view loadTrigger, saveTrigger, readTrigger, writeTrigger;
    double normFactor = 0;  ///< 0: the values are absolute
    std::string_view factorVariable;
    bool enabled = false, saveSubRecipes = false, saveChanges = false, crypted = false;
    bool writeThrough = false, saveThrough = false;
    std::span<const std::size_t> variables{};  ///< numbers for ProjectData::variable()
    std::span<const SubRecipe> subRecipes{};
};

/// All recipes of a project, ordered by name (OrderedName). Made for 100,000 of them with millions of members: no text
/// is a piece of memory of its own. It lends texts and lists to its recipes, so it moves but is not copied.
class ProjectData {
  public:
    ProjectData() = default;
    ProjectData(ProjectData&&) noexcept = default;
    ProjectData& operator=(ProjectData&&) noexcept = default;
    ProjectData(const ProjectData&) = delete;
    ProjectData& operator=(const ProjectData&) = delete;
    ~ProjectData() = default;

    [[nodiscard]] const std::vector<RecipeData>& recipes() const noexcept { return recipes_; }
    /// The number in recipes() of the recipe with this ID; of two, of the one that stands first.
    [[nodiscard]] std::optional<std::size_t> find(std::int64_t id) const;
    [[nodiscard]] std::string_view variable(std::size_t number) const { return variables_[number]; }
    /// Those of all recipes, one recipe after the other.
    [[nodiscard]] const std::vector<SubRecipe>& subRecipes() const noexcept { return subRecipes_; }
    /// The number of members whose recipe there is not.
    [[nodiscard]] std::size_t orphans() const noexcept { return orphans_; }

  private:
    friend class ProjectBuilder;
    struct Numbered {
        std::int64_t id;
        std::size_t number;
    };

    automation::PackedTexts texts_;  // but the variables
    automation::TextList variables_;
    Links variableLinks_{0, std::vector<Links::Link>()};
    std::vector<SubRecipe> subRecipes_;
    std::vector<RecipeData> recipes_;
    std::vector<Numbered> numbers_;  // by ID
    std::size_t orphans_ = 0;
};

[[nodiscard]] ProjectData readProject(Reader& reader);
/// Of these recipes alone, and of those that they include, directly or through others. Members without a recipe are
/// not among them.
[[nodiscard]] ProjectData readRecipes(Reader& reader, std::span<const std::int64_t> recipes);

}  // namespace hx::project
