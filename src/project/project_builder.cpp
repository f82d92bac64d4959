// SPDX-License-Identifier: MIT
#include "project/project_builder.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "project/name_order.h"

namespace hx::project {

namespace {

constexpr std::array textMembers = {
    &RecipeData::name,         &RecipeData::fileNameVariable, &RecipeData::descriptionVariable,
    &RecipeData::filePath,     &RecipeData::fileExtension,    &RecipeData::comment,
    &RecipeData::loadTrigger,  &RecipeData::saveTrigger,      &RecipeData::readTrigger,
    &RecipeData::writeTrigger, &RecipeData::factorVariable};

// The numbers of the recipes by name.
std::vector<std::uint32_t> orderOf(const std::vector<RecipeData>& recipes) {
    struct Place {
        OrderedName name;
        std::int64_t id;
        std::uint32_t from;
    };
    std::vector<Place> places;
    places.reserve(recipes.size());
    for (const RecipeData& recipe : recipes)
        places.push_back({OrderedName(recipe.name), recipe.id, static_cast<std::uint32_t>(places.size())});
    std::ranges::sort(places,
                      [](const Place& a, const Place& b) { return std::tie(a.name, a.id) < std::tie(b.name, b.id); });
    std::vector<std::uint32_t> order;
    order.reserve(places.size());
    for (const Place& place : places) order.push_back(place.from);
    return order;
}

}  // namespace

void ProjectBuilder::addRecipe(RecipeData recipe) {
    for (const auto text : textMembers) recipe.*text = data_.texts_.keep(recipe.*text);
    data_.recipes_.push_back(recipe);
}

void ProjectBuilder::orderRecipes() {
    std::vector<RecipeData> sorted;
    sorted.reserve(data_.recipes_.size());
    for (const std::uint32_t from : orderOf(data_.recipes_)) {
        data_.numbers_.push_back({data_.recipes_[from].id, sorted.size()});
        sorted.push_back(data_.recipes_[from]);
    }
    data_.recipes_ = std::move(sorted);
    std::ranges::sort(data_.numbers_, {}, [](const auto& numbered) { return std::pair(numbered.id, numbered.number); });
}

void ProjectBuilder::addMember(std::int64_t parent, std::int64_t child, std::string_view text) {
    if (data_.numbers_.size() != data_.recipes_.size()) orderRecipes();
    const auto recipe = data_.find(parent);
    if (!recipe) {
        ++data_.orphans_;
        return;
    }
    if (child == 0) {
        data_.variables_.append(text);
        variableRecipes_.push_back(static_cast<std::uint32_t>(*recipe));
    } else {
        subRecipes_.push_back({child, data_.texts_.keep(text)});
        childRecipes_.push_back(static_cast<std::uint32_t>(*recipe));
    }
}

void ProjectBuilder::linkVariables() {
    data_.variableLinks_ = {data_.recipes_.size(), variableRecipes_};
    for (std::size_t i = 0; i < data_.recipes_.size(); ++i) data_.recipes_[i].variables = data_.variableLinks_.of(i);
}

void ProjectBuilder::linkSubRecipes() {
    const Links links(data_.recipes_.size(), childRecipes_);
    data_.subRecipes_.reserve(subRecipes_.size());
    for (std::size_t i = 0; i < data_.recipes_.size(); ++i) {
        const std::size_t first = data_.subRecipes_.size();
        for (const std::size_t number : links.of(i)) data_.subRecipes_.push_back(subRecipes_[number]);
        data_.recipes_[i].subRecipes = std::span(data_.subRecipes_).subspan(first);
    }
}

ProjectData ProjectBuilder::build() {
    if (data_.numbers_.size() != data_.recipes_.size()) orderRecipes();
    linkVariables();
    linkSubRecipes();
    return std::move(data_);
}

}  // namespace hx::project
