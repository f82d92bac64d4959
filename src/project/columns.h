// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "automation/sentence.h"
#include "project/schema.h"

namespace hx::project {

enum class Table : std::uint8_t { recipes, members, variables };

[[nodiscard]] constexpr std::string_view nameOf(Table table) noexcept {
    constexpr std::array names{schema::recipeTable, schema::memberTable, schema::variableTable};
    return names[static_cast<std::size_t>(table)];
}

/// A column of text, as the user knows it from the dialogs.
struct SearchedColumn {
    Table table;
    std::string_view name;
    automation::Sentence caption;
    bool isName = false;  ///< of the row: never empty
};

/// All columns of text in which something is looked for.
inline constexpr auto searchedColumns = std::to_array<SearchedColumn>({
    {Table::recipes, schema::recipe::name, {"Name", "Name"}, true},
    {Table::recipes, schema::recipe::comment, {"Comment", "Kommentar"}},
    {Table::recipes, schema::recipe::varRecipeName, {"Recipe File Name", "Rezeptdateiname"}},
    {Table::recipes, schema::recipe::varDescription, {"Description Variable", "Beschreibungsvariable"}},
    {Table::recipes, schema::recipe::varLoad, {"Load Trigger", "Ladetrigger"}},
    {Table::recipes, schema::recipe::varSave, {"Save Trigger", "Speichertrigger"}},
    {Table::recipes, schema::recipe::varRead, {"Read Trigger", "Lesetrigger"}},
    {Table::recipes, schema::recipe::varWrite, {"Write Trigger", "Schreibtrigger"}},
    {Table::recipes, schema::recipe::varSetValue, {"Multiply Factor Variable", "Sollfaktorvariable"}},
    {Table::members, schema::member::varRecipe, {"Variable", "Variable"}},
    {Table::variables, schema::variable::name, {"Name", "Name"}, true},
    {Table::variables, schema::variable::comment, {"Comment", "Kommentar"}},
});

/// The types of the variables, in which nothing is looked for.
inline constexpr SearchedColumn variableTypeColumn{Table::variables, schema::variable::type, {"Type", "Typ"}};

/// What a column of the recipes is called in a dialog; its name when it is none of them.
[[nodiscard]] constexpr automation::Sentence captionOf(std::string_view recipeColumn) noexcept {
    for (const SearchedColumn& column : searchedColumns) {
        if (column.table == Table::recipes && column.name == recipeColumn) return column.caption;
    }
    return {recipeColumn, recipeColumn};
}

}  // namespace hx::project
