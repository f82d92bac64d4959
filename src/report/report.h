// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "project/inclusion_graph.h"
#include "project/project_data.h"
#include "report/report_texts.h"

namespace hx::report {

/// A property of a recipe; an empty value is one that is not set.
struct Property {
    std::string caption, value;
};

/// Properties that stand together, as on a page of the editor's dialog.
struct PropertyGroup {
    std::string caption;
    std::vector<Property> properties;
};

/// Something that is switched on or off.
struct Switch {
    std::string caption;
    bool on = false;
};

/// What the report says of one recipe.
struct Section {
    const project::RecipeData* recipe;  ///< lent by the report
    std::vector<PropertyGroup> groups;
    std::string switchesCaption;
    std::vector<Switch> switches;
    project::Tree tree;
    project::Uses uses;  ///< the indirect ones in the order of the recipes
};

/// The report on a project: what it says, in one language, without a form. Sections are made when they are asked for.
class Report {
  public:
    /// At most so many findings are listed at the front.
    static constexpr std::size_t mostFindings = 50;
    /// So far goes a section; what is cut off stands with the sub-recipes themselves.
    static constexpr std::size_t mostBranches = 1000, mostIndirect = 1000, deepest = 24;

    /// What the data is of: a selection knows nothing of the recipes that are not in it.
    enum class Extent { project, selection };

    Report(project::ProjectData data, Texts texts, std::string projectFile, const Moment& created,
           Extent extent = Extent::project);
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    [[nodiscard]] const Texts& texts() const noexcept { return texts_; }
    [[nodiscard]] const std::string& projectName() const noexcept { return projectName_; }
    [[nodiscard]] const std::string& projectFile() const noexcept { return projectFile_; }
    [[nodiscard]] std::string created() const { return texts_.date(created_); }
    /// Title and project: "Rezeptbericht – Anlage".
    [[nodiscard]] std::string fullTitle() const;
    /// The lines at the front: project, file, date, content.
    [[nodiscard]] std::vector<Property> summary() const;
    /// What the reader should look at: cycles, missing sub-recipes, members without a recipe.
    [[nodiscard]] const std::vector<std::string>& findings() const noexcept { return findings_; }

    /// The recipes in the order of the report; a recipe's number in it is one more than its index.
    [[nodiscard]] const std::vector<project::RecipeData>& recipes() const noexcept { return data_.recipes(); }
    /// The name, or a text that says that there is none.
    [[nodiscard]] std::string nameOf(std::size_t recipe) const;
    [[nodiscard]] Section section(std::size_t recipe) const;
    /// What is said of a recipe that no other one includes.
    [[nodiscard]] Text notUsed() const noexcept {
        return extent_ == Extent::project ? Text::notUsed : Text::notUsedHere;
    }
    /// The name of one of a recipe's variables.
    [[nodiscard]] std::string_view variable(std::size_t number) const { return data_.variable(number); }
    /// What a branch of a tree is called, the variable that names its file, and what its mark says; empty without a
    /// mark.
    [[nodiscard]] std::string branchName(const project::Branch& branch) const;
    [[nodiscard]] std::string_view branchFile(const project::Branch& branch) const;
    [[nodiscard]] std::string branchNote(const project::Branch& branch) const;

  private:
    void find();
    [[nodiscard]] project::Uses usesOf(std::size_t recipe) const;
    [[nodiscard]] std::vector<PropertyGroup> groupsOf(const project::RecipeData& recipe) const;
    [[nodiscard]] std::vector<Switch> switchesOf(const project::RecipeData& recipe) const;

    project::ProjectData data_;
    project::InclusionGraph graph_;  // its inclusions are the data's subRecipes()
    Texts texts_;
    std::string projectFile_, projectName_;
    Moment created_;
    Extent extent_;
    std::vector<std::string> findings_;
};

}  // namespace hx::report
