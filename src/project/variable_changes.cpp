// SPDX-License-Identifier: MIT
#include "project/variable_changes.h"

#include <algorithm>
#include <array>

#include "automation/text.h"
#include "project/schema.h"

namespace hx::project {

namespace {

const SearchedColumn& columnOf(Table table, std::string_view name) {
    return *std::ranges::find_if(
        searchedColumns, [&](const SearchedColumn& column) { return column.table == table && column.name == name; });
}

}  // namespace

std::vector<Replacement> renamingOf(Reader& reader, const std::string& name, const std::string& after) {
    std::vector<Replacement> result;
    const auto look = [&](const SearchedColumn& column, std::int64_t row, const ado::StoredValue& value) {
        if (value.kind == ado::StoredValue::Kind::text && automation::equalIgnoreCase(value.text, name))
            result.push_back({&column, row, std::string(value.text), after});
    };
    constexpr auto& names = schema::recipe::variableColumns;
    std::vector<std::string_view> columns(names.begin(), names.end());
    columns.push_back(schema::recipe::id);
    reader.read(schema::recipeTable, columns, [&](Row row) {
        for (std::size_t i = 0; i < names.size(); ++i)
            look(columnOf(Table::recipes, names[i]), row.back().integer, row[i]);
    });
    const SearchedColumn& member = columnOf(Table::members, schema::member::varRecipe);
    reader.read(schema::memberTable, std::array{schema::member::id, schema::member::varRecipe},
                [&](Row row) { look(member, row[0].integer, row[1]); });
    return result;
}

void removeVariables(ado::Session& session, std::span<const ado::Key> keys) {
    session.beginTransaction();
    try {
        const auto rows = session.open(schema::variableTable, ado::adCmdTableDirect);
        for (const ado::Key key : keys) rows->remove(key);
    } catch (...) {
        session.rollback();
        throw;
    }
    session.commit();
}

}  // namespace hx::project
