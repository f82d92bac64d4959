// SPDX-License-Identifier: MIT
#include "report/report.h"

#include <algorithm>
#include <utility>

#include "automation/convert.h"
#include "host/paths.h"
#include "resources/text_ids.h"

namespace hx::report {

using project::Branch;
using project::BranchMark;
using project::InclusionGraph;

namespace caption = resources::text_id::recipe_dialog;

namespace {

std::string nameOfFile(std::string_view path) {
    const std::string_view file = host::PathStyle::fileOf(path);
    return std::string(file.substr(0, file.rfind('.')));
}

std::string withoutDots(const std::string& text) { return text.substr(0, text.find_last_not_of('.') + 1); }

// The inclusions in the order of the data's subRecipes().
InclusionGraph graphOf(const project::ProjectData& data) {
    std::vector<InclusionGraph::Inclusion> inclusions;
    for (std::size_t parent = 0; parent < data.recipes().size(); ++parent) {
        for (const project::SubRecipe& inclusion : data.recipes()[parent].subRecipes) {
            inclusions.push_back({parent, data.find(inclusion.child).value_or(InclusionGraph::noRecipe)});
        }
    }
    return {data.recipes().size(), std::move(inclusions)};
}

}  // namespace

Report::Report(project::ProjectData data, Texts texts, std::string projectFile, const Moment& created, Extent extent)
    : data_(std::move(data)),
      graph_(graphOf(data_)),
      texts_(std::move(texts)),
      projectFile_(std::move(projectFile)),
      projectName_(nameOfFile(projectFile_)),
      created_(created),
      extent_(extent) {
    find();
}

std::string Report::fullTitle() const { return texts_.text(Text::title) + " – " + projectName_; }

std::vector<Property> Report::summary() const {
    std::size_t variables = 0, subRecipes = 0;
    for (const project::RecipeData& recipe : recipes()) {
        variables += recipe.variables.size();
        subRecipes += recipe.subRecipes.size();
    }
    const std::string content = texts_.text(
        Text::contentSummary, {texts_.number(recipes().size()), texts_.number(variables), texts_.number(subRecipes)});
    std::vector<Property> lines = {{texts_.text(Text::project), projectName_},
                                   {texts_.text(Text::projectFile), projectFile_},
                                   {texts_.text(Text::created), created()},
                                   {texts_.text(Text::content), content}};
    if (extent_ == Extent::selection)
        lines.push_back({texts_.text(Text::selection), texts_.text(Text::selectionSummary)});
    return lines;
}

void Report::find() {
    const std::vector<bool> inCycle = graph_.cycles().nodes;
    std::size_t more = 0;
    const auto add = [&](std::string finding) {
        if (findings_.size() < mostFindings) findings_.push_back(std::move(finding));
        else ++more;
    };
    if (data_.orphans() > 0) add(texts_.text(Text::findingOrphans, {texts_.number(data_.orphans())}));
    for (std::size_t i = 0; i < recipes().size(); ++i) {
        if (inCycle[i]) add(texts_.text(Text::findingCycle, {nameOf(i)}));
        for (const project::SubRecipe& inclusion : recipes()[i].subRecipes) {
            if (data_.find(inclusion.child)) continue;
            add(texts_.text(Text::findingMissing, {nameOf(i), std::to_string(inclusion.child)}));
        }
    }
    if (more > 0) findings_.push_back(texts_.text(Text::moreFindings, {texts_.number(more)}));
}

std::string Report::nameOf(std::size_t recipe) const {
    const std::string_view name = recipes()[recipe].name;
    return name.empty() ? texts_.text(Text::noName) : std::string(name);
}

Section Report::section(std::size_t recipe) const {
    const project::RecipeData& data = recipes()[recipe];
    return {&data,
            groupsOf(data),
            texts_.caption(caption::options),
            switchesOf(data),
            graph_.tree(recipe, {.depth = deepest, .branches = mostBranches}),
            usesOf(recipe)};
}

project::Uses Report::usesOf(std::size_t recipe) const {
    project::Uses uses = graph_.uses({recipe}, mostIndirect);
    std::ranges::sort(std::span(uses.list).subspan(uses.directCount), {}, &project::Use::recipe);
    return uses;
}

std::vector<PropertyGroup> Report::groupsOf(const project::RecipeData& recipe) const {
    const auto named = [this](std::int32_t number, std::string_view value) {
        return Property{withoutDots(texts_.caption(number)), std::string(value)};
    };
    const bool relative = recipe.normFactor != 0;
    PropertyGroup standard{
        texts_.caption(caption::standard),
        {named(caption::fileName, recipe.fileNameVariable), named(caption::description, recipe.descriptionVariable),
         named(caption::filePath, recipe.filePath), named(caption::fileExtension, recipe.fileExtension),
         named(caption::comment, recipe.comment),
         named(caption::active, texts_.text(recipe.enabled ? Text::yes : Text::no))}};
    PropertyGroup extended{
        texts_.caption(caption::extended),
        {named(caption::loadTrigger, recipe.loadTrigger), named(caption::saveTrigger, recipe.saveTrigger),
         named(caption::readTrigger, recipe.readTrigger), named(caption::writeTrigger, recipe.writeTrigger),
         named(caption::values, texts_.caption(relative ? caption::relative : caption::absolute)),
         // As the dialog shows it: with a point in every language.
         named(caption::normFactor, automation::numberToText(recipe.normFactor)),
         named(caption::factorVariable, recipe.factorVariable)}};
    return {std::move(standard), std::move(extended)};
}

std::vector<Switch> Report::switchesOf(const project::RecipeData& recipe) const {
    return {{texts_.caption(caption::writeThrough), recipe.writeThrough},
            {texts_.caption(caption::saveThrough), recipe.saveThrough},
            {texts_.caption(caption::saveSubRecipes), recipe.saveSubRecipes},
            {texts_.caption(caption::saveChanges), recipe.saveChanges},
            {texts_.caption(caption::crypted), recipe.crypted}};
}

std::string Report::branchName(const Branch& branch) const {
    if (branch.recipe) return nameOf(*branch.recipe);
    return texts_.text(Text::missingName, {std::to_string(data_.subRecipes()[branch.inclusion].child)});
}

std::string_view Report::branchFile(const Branch& branch) const {
    return data_.subRecipes()[branch.inclusion].fileVariable;
}

std::string Report::branchNote(const Branch& branch) const {
    switch (branch.mark) {
        case BranchMark::none: return {};
        case BranchMark::cycle: return texts_.text(Text::branchCycle);
        case BranchMark::missing: return texts_.text(Text::branchMissing);
        case BranchMark::repeated: return texts_.text(Text::branchRepeated);
        case BranchMark::deeper: return texts_.text(Text::branchDeeper);
    }
    return {};
}

}  // namespace hx::report
