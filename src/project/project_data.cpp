// SPDX-License-Identifier: MIT
#include "project/project_data.h"

#include <array>
#include <span>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "project/id_order.h"
#include "project/project_builder.h"
#include "project/schema.h"

namespace hx::project {

namespace {

struct TextColumn {
    std::string_view name;
    std::string_view RecipeData::*field;
};
struct FlagColumn {
    std::string_view name;
    bool RecipeData::*field;
};

constexpr auto textColumns = std::to_array<TextColumn>({
    {schema::recipe::name, &RecipeData::name},
    {schema::recipe::varRecipeName, &RecipeData::fileNameVariable},
    {schema::recipe::varDescription, &RecipeData::descriptionVariable},
    {schema::recipe::filePath, &RecipeData::filePath},
    {schema::recipe::fileExtension, &RecipeData::fileExtension},
    {schema::recipe::comment, &RecipeData::comment},
    {schema::recipe::varLoad, &RecipeData::loadTrigger},
    {schema::recipe::varSave, &RecipeData::saveTrigger},
    {schema::recipe::varRead, &RecipeData::readTrigger},
    {schema::recipe::varWrite, &RecipeData::writeTrigger},
    {schema::recipe::varSetValue, &RecipeData::factorVariable},
});

constexpr auto flagColumns = std::to_array<FlagColumn>({
    {schema::recipe::enabled, &RecipeData::enabled},
    {schema::recipe::saveSubRecipes, &RecipeData::saveSubRecipes},
    {schema::recipe::saveChanges, &RecipeData::saveChanges},
    {schema::recipe::cryptEngine, &RecipeData::crypted},
});

constexpr std::size_t fixedColumns = 3;  // before the texts and the flags

std::vector<std::string_view> recipeColumns() {
    std::vector<std::string_view> names = {schema::recipe::id, schema::recipe::standardValue, schema::recipe::options};
    for (const TextColumn& column : textColumns) names.push_back(column.name);
    for (const FlagColumn& column : flagColumns) names.push_back(column.name);
    return names;
}

// The values of recipeColumns().
RecipeData recipeOf(Row values) {
    RecipeData recipe;
    recipe.id = values[0].integer;
    recipe.normFactor = values[1].real;
    recipe.writeThrough = (values[2].integer & schema::option::writeThrough) != 0;
    recipe.saveThrough = (values[2].integer & schema::option::saveThrough) != 0;
    const Row texts = values.subspan(fixedColumns), flags = texts.subspan(textColumns.size());
    for (std::size_t i = 0; i < textColumns.size(); ++i) recipe.*textColumns[i].field = texts[i].text;
    for (std::size_t i = 0; i < flagColumns.size(); ++i) recipe.*flagColumns[i].field = flags[i].isTrue();
    return recipe;
}

ProjectData readWhere(Reader& reader, const std::function<bool(std::int64_t recipe)>& isWanted) {
    ProjectBuilder builder;
    reader.read(schema::recipeTable, recipeColumns(), [&](Row values) {
        if (isWanted(values[0].integer)) builder.addRecipe(recipeOf(values));
    });
    using namespace schema::member;
    reader.read(schema::memberTable, std::array{parentId, childId, varRecipe}, [&](Row values) {
        if (isWanted(values[0].integer)) builder.addMember(values[0].integer, values[1].integer, values[2].text);
    });
    return builder.build();
}

}  // namespace

std::optional<std::size_t> ProjectData::find(std::int64_t id) const {
    const auto found = positionOf(numbers_, id);
    return found ? std::optional(numbers_[*found].number) : std::nullopt;
}

ProjectData readProject(Reader& reader) {
    return readWhere(reader, [](std::int64_t) { return true; });
}

ProjectData readRecipes(Reader& reader, std::span<const std::int64_t> recipes) {
    std::unordered_multimap<std::int64_t, std::int64_t> children;
    for (const Inclusion& inclusion : reader.inclusions()) children.emplace(inclusion.parent, inclusion.child);
    std::unordered_set<std::int64_t> wanted;
    std::vector<std::int64_t> next(recipes.begin(), recipes.end());
    while (!next.empty()) {
        const std::int64_t recipe = next.back();
        next.pop_back();
        if (!wanted.insert(recipe).second) continue;
        const auto [first, end] = children.equal_range(recipe);
        for (auto child = first; child != end; ++child) next.push_back(child->second);
    }
    return readWhere(reader, [&](std::int64_t recipe) { return wanted.contains(recipe); });
}

}  // namespace hx::project
