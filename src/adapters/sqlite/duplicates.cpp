// SPDX-License-Identifier: MIT
#include "adapters/sqlite/duplicates.h"

#include "adapters/sqlite/sentences.h"
#include "automation/convert.h"
#include "automation/text.h"

namespace hx::sqlite {

using automation::equalIgnoreCase;
using automation::Variant;

namespace {

bool holdsNumber(const Variant& value) {
    return !value.isNull() && !value.isString() && automation::toDouble(value) != 0;
}

// The user knows recipes and variables, not the names of tables and columns.
const automation::Sentence& sentenceFor(std::string_view table, std::string_view column, const RefusedRow& row) {
    if (equalIgnoreCase(table, "TrcpRecipe") && equalIgnoreCase(column, "Name")) return sentence::recipeExists;
    if (equalIgnoreCase(table, "ThxVariable") && equalIgnoreCase(column, "Name")) return sentence::variableExists;
    if (equalIgnoreCase(table, "TrcpRecipeMember") && equalIgnoreCase(column, "VarRecipe")) {
        return holdsNumber(row("ChildID")) ? sentence::subRecipeExists : sentence::memberExists;
    }
    return sentence::valueExists;
}

}  // namespace

automation::Error namingDuplicate(const automation::Error& error, const Database& database, const TableInfo& table,
                                  const RefusedRow& row) {
    if (error.number() != ado::dbErrDuplicate) return error;
    for (const ado::Column& column : table.columns) {
        if (error.description().find("\"" + table.name + "." + column.name + "\"") == std::string::npos) continue;
        return database.error(ado::dbErrDuplicate, sentenceFor(table.name, column.name, row),
                              {automation::toText(row(column.name)), column.name, table.name});
    }
    return error;
}

Variant storedValue(Database& database, const TableInfo& table, std::string_view column, ado::Key key) {
    const ado::DataType type = table.columns[table.requireColumn(column)].type;
    Statement& statement = database.prepared("SELECT " + quotedName(column) + " FROM " + quotedName(table.name) +
                                             " WHERE " + quotedName(table.key) + " = ?");
    const ResetGuard guard(statement);
    statement.bind(1, key);
    return statement.step() ? statement.value(0, type) : Variant(automation::Null{});
}

}  // namespace hx::sqlite
