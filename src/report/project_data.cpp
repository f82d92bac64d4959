#include "report/project_data.h"

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>

#include "ado/recordset.h"
#include "automation/convert.h"
#include "recipe/schema.h"
#include "report/name_order.h"

namespace hx::report {

namespace schema = recipe::schema;
using automation::Variant;

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

std::string textOf(const Variant& value) { return automation::toText(value); }
bool flagOf(const Variant& value) { return !value.isNull() && automation::toBoolean(value); }
std::int32_t numberOf(const Variant& value) { return value.isNull() ? 0 : automation::toInt32(value); }

std::vector<std::string_view> recipeFields() {
    std::vector<std::string_view> names = {schema::recipe::id, schema::recipe::standardValue, schema::recipe::options};
    for (const TextColumn& column : textColumns) names.push_back(column.name);
    for (const FlagColumn& column : flagColumns) names.push_back(column.name);
    return names;
}

// The values of recipeFields().
RecipeData recipeOf(std::span<const Variant> values) {
    RecipeData recipe;
    auto value = values.begin();
    recipe.id = numberOf(*value++);
    recipe.normFactor = value->isNull() ? 0 : automation::toDouble(*value);
    const std::int32_t options = numberOf(*++value);
    recipe.writeThrough = (options & schema::option::writeThrough) != 0;
    recipe.saveThrough = (options & schema::option::saveThrough) != 0;
    for (const TextColumn& column : textColumns) recipe.*column.field = textOf(*++value);
    for (const FlagColumn& column : flagColumns) recipe.*column.field = flagOf(*++value);
    return recipe;
}

/// Gives the rows of a command one by one; none is kept.
template <class Receive>
void forEachRow(const std::shared_ptr<ado::Connection>& connection, const std::string& command,
                std::span<const std::string_view> fields, Receive receive) {
    ado::Recordset rows;
    rows.open(command, connection, ado::adOpenForwardOnly, ado::adLockReadOnly, ado::adCmdText);
    if (!rows.eof()) rows.getRows(ado::adGetRowsRest, fields, receive);
    rows.close();
}

std::string allOf(std::string_view table, std::string_view order) {
    return "SELECT * FROM " + std::string(table) + " ORDER BY " + std::string(order);
}

std::vector<RecipeData> readRecipes(const std::shared_ptr<ado::Connection>& connection) {
    std::vector<RecipeData> recipes;
    forEachRow(connection, allOf(schema::recipeTable, schema::recipe::id), recipeFields(),
               [&](std::span<Variant> values) { recipes.push_back(recipeOf(values)); });
    return recipes;
}

// The number of members whose recipe there is not.
std::size_t readMembers(const std::shared_ptr<ado::Connection>& connection, std::vector<RecipeData>& recipes) {
    std::unordered_map<std::int32_t, RecipeData*> byId;
    for (RecipeData& recipe : recipes) byId.emplace(recipe.id, &recipe);
    constexpr std::array<std::string_view, 3> fields = {schema::member::parentId, schema::member::childId,
                                                        schema::member::varRecipe};
    std::size_t orphans = 0;
    forEachRow(connection, allOf(schema::memberTable, schema::member::id), fields, [&](std::span<Variant> values) {
        const auto parent = byId.find(numberOf(values[0]));
        if (parent == byId.end()) {
            ++orphans;
            return;
        }
        const std::int32_t child = numberOf(values[1]);
        if (child == 0) parent->second->variables.push_back(textOf(values[2]));
        else parent->second->subRecipes.push_back({child, textOf(values[2])});
    });
    return orphans;
}

std::vector<RecipeData> inOrder(std::vector<RecipeData> recipes) {
    struct Place {
        OrderedName name;
        std::int32_t id;
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

std::optional<std::size_t> ProjectData::find(std::int32_t id) const {
    const auto found = numbers_.find(id);
    return found == numbers_.end() ? std::nullopt : std::optional(found->second);
}

ProjectData readProject(ado::Provider& provider, const std::string& path) {
    const auto connection = std::make_shared<ado::Connection>(provider);
    connection->open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";Mode=Read|Share Deny None;");
    std::vector<RecipeData> recipes = readRecipes(connection);
    const std::size_t orphans = readMembers(connection, recipes);
    connection->close();
    return {std::move(recipes), orphans};
}

}  // namespace hx::report
