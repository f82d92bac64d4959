#include "project/project_data.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>

#include "project/name_order.h"
#include "project/schema.h"

namespace hx::project {

namespace {

struct TextColumn {
    std::string_view name;
    std::string RecipeData::*field;
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

using Row = std::span<const ado::StoredValue>;

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

std::vector<RecipeData> readRecipes(Reader& reader) {
    std::vector<RecipeData> recipes;
    reader.read(schema::recipeTable, recipeColumns(), [&](Row values) { recipes.push_back(recipeOf(values)); });
    return recipes;
}

// The number of members whose recipe there is not.
std::size_t readMembers(Reader& reader, std::vector<RecipeData>& recipes) {
    std::unordered_map<std::int64_t, RecipeData*> byId;
    for (RecipeData& recipe : recipes) byId.emplace(recipe.id, &recipe);
    using namespace schema::member;
    std::size_t orphans = 0;
    reader.read(schema::memberTable, std::array{parentId, childId, varRecipe}, [&](Row values) {
        const auto parent = byId.find(values[0].integer);
        if (parent == byId.end()) {
            ++orphans;
            return;
        }
        const std::int64_t child = values[1].integer;
        if (child == 0) parent->second->variables.emplace_back(values[2].text);
        else parent->second->subRecipes.push_back({child, std::string(values[2].text)});
    });
    return orphans;
}

std::vector<RecipeData> inOrder(std::vector<RecipeData> recipes) {
    struct Place {
        OrderedName name;
        std::int64_t id;
        std::size_t from;
    };
    std::vector<Place> places;
    places.reserve(recipes.size());
    for (std::size_t i = 0; i < recipes.size(); ++i) places.push_back({OrderedName(recipes[i].name), recipes[i].id, i});
    std::ranges::sort(places,
                      [](const Place& a, const Place& b) { return std::tie(a.name, a.id) < std::tie(b.name, b.id); });
    std::vector<RecipeData> sorted;
    sorted.reserve(recipes.size());
    for (const Place& place : places) sorted.push_back(std::move(recipes[place.from]));
    return sorted;
}

}  // namespace

ProjectData::ProjectData(std::vector<RecipeData> recipes, std::size_t orphans)
    : recipes_(inOrder(std::move(recipes))), orphans_(orphans) {
    for (std::size_t i = 0; i < recipes_.size(); ++i) numbers_.emplace(recipes_[i].id, i);
}

std::optional<std::size_t> ProjectData::find(std::int64_t id) const {
    const auto found = numbers_.find(id);
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

ProjectData readProject(Reader& reader) {
    std::vector<RecipeData> recipes = readRecipes(reader);
    const std::size_t orphans = readMembers(reader, recipes);
    return {std::move(recipes), orphans};
}

}  // namespace hx::project
