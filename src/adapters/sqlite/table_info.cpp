// SPDX-License-Identifier: MIT
#include "adapters/sqlite/table_info.h"

#include <array>
#include <charconv>

#include "automation/text.h"

namespace hx::sqlite {

using automation::equalIgnoreCase;

namespace {

constexpr std::int32_t defaultTextSize = 255;

struct TypeName {
    std::string_view name;
    ado::DataType type;
    std::int32_t size;
};

constexpr std::array<TypeName, 18> typeNames = {{
    {"INTEGER", ado::adInteger, 4},
    {"INT", ado::adInteger, 4},
    {"LONG", ado::adInteger, 4},
    {"SMALLINT", ado::adSmallInt, 2},
    {"SHORT", ado::adSmallInt, 2},
    {"DOUBLE", ado::adDouble, 8},
    {"REAL", ado::adDouble, 8},
    {"FLOAT", ado::adDouble, 8},
    {"DOUBLE PRECISION", ado::adDouble, 8},
    {"BOOLEAN", ado::adBoolean, 2},
    {"BIT", ado::adBoolean, 2},
    {"YESNO", ado::adBoolean, 2},
    {"VARCHAR", ado::adVarWChar, defaultTextSize},
    {"NVARCHAR", ado::adVarWChar, defaultTextSize},
    {"CHAR", ado::adVarWChar, defaultTextSize},
    {"LONGTEXT", ado::adLongVarWChar, 0},
    {"MEMO", ado::adLongVarWChar, 0},
    {"TEXT", ado::adLongVarWChar, 0},
}};

std::int32_t sizeIn(std::string_view declaredType, std::int32_t otherwise) {
    const auto open = declaredType.find('(');
    if (open == std::string_view::npos) return otherwise;
    const std::string_view digits = automation::trim(declaredType.substr(open + 1));
    std::int32_t size = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), size);
    return result.ec == std::errc() && size > 0 ? size : otherwise;
}

bool isView(Database& database, const std::string& name) {
    Statement& statement = database.prepared("SELECT 1 FROM sqlite_schema WHERE name = ?1 AND type = 'view'");
    const ResetGuard guard(statement);
    statement.bind(1, automation::Variant(name));
    return statement.step();
}

// The stored spelling of a table's or view's name.
std::optional<std::string> storedName(Database& database, std::string_view name) {
    Statement& statement = database.prepared(
        "SELECT name FROM sqlite_schema WHERE name = ?1 COLLATE NOCASE AND type IN ('table', 'view')");
    const ResetGuard guard(statement);
    statement.bind(1, automation::Variant(name));
    if (!statement.step()) return std::nullopt;
    return statement.text(0);
}

void readColumns(Database& database, TableInfo& info) {
    // SQLite makes texts of numbers in columns of these types alone.
    Statement& statement = database.prepared(
        "SELECT name, type, pk, type LIKE '%CHAR%' OR type LIKE '%CLOB%' OR type LIKE '%TEXT%' "
        "FROM pragma_table_info(?1)");
    const ResetGuard guard(statement);
    statement.bind(1, automation::Variant(info.name));
    int keyParts = 0;
    std::optional<std::size_t> integerKey;
    while (statement.step()) {
        if (statement.key(2) > 0) {
            ++keyParts;
            // Only exactly this type makes the column the row's own number.
            if (equalIgnoreCase(statement.text(1), "INTEGER")) integerKey = info.columns.size();
        }
        ado::Column& column = info.columns.emplace_back(columnOfType(statement.text(0), statement.text(1)));
        column.keepsAnything = isText(column) && statement.key(3) == 0;
    }
    if (keyParts != 1 || !integerKey) return;
    ado::Column& key = info.columns[*integerKey];
    key.isKey = true;
    key.updatable = false;
    info.key = key.name;
}

bool hasRowNumbers(Database& database, const TableInfo& info) {
    if (isView(database, info.name) || info.column("rowid")) return false;
    Statement& statement =
        database.prepared("SELECT 1 FROM pragma_table_list WHERE name = ?1 AND schema = 'main' AND wr = 0");
    const ResetGuard guard(statement);
    statement.bind(1, automation::Variant(info.name));
    return statement.step();
}

}  // namespace

ado::Column columnOfType(std::string name, std::string_view declaredType) {
    const std::string_view base = automation::trim(declaredType.substr(0, declaredType.find('(')));
    for (const TypeName& known : typeNames) {
        if (!equalIgnoreCase(base, known.name)) continue;
        const bool text = known.type == ado::adVarWChar;
        return {std::move(name), known.type, text ? sizeIn(declaredType, known.size) : known.size, false, true};
    }
    return {std::move(name), ado::adLongVarWChar, 0, false, true};
}

bool isText(const ado::Column& column) { return column.type == ado::adVarWChar || column.type == ado::adLongVarWChar; }

std::optional<std::size_t> TableInfo::column(std::string_view wanted) const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (equalIgnoreCase(columns[i].name, wanted)) return i;
    }
    return std::nullopt;
}

std::size_t TableInfo::requireColumn(std::string_view wanted) const {
    if (const auto found = column(wanted)) return *found;
    throw automation::Error(ado::dbErrBadCommand,
                            "Table \"" + name + "\" has no column \"" + std::string(wanted) + "\".");
}

std::optional<TableInfo> TableInfo::read(Database& database, std::string_view name) {
    TableInfo info;
    const auto stored = storedName(database, name);
    if (!stored) return std::nullopt;
    info.name = *stored;
    readColumns(database, info);
    if (info.key.empty() && hasRowNumbers(database, info)) info.key = "rowid";
    return info;
}

std::vector<std::string> uniqueTextColumns(Database& database, const std::string& table) {
    Statement& statement = database.prepared(
        "SELECT min(x.name), min(x.coll) FROM pragma_index_list(?1) AS l, pragma_index_xinfo(l.name) AS x "
        "WHERE l.\"unique\" = 1 AND l.partial = 0 AND x.key = 1 GROUP BY l.name HAVING count(*) = 1");
    const ResetGuard guard(statement);
    statement.bind(1, automation::Variant(table));
    std::vector<std::string> columns;
    while (statement.step()) {
        if (equalIgnoreCase(statement.text(1), "NOCASE")) columns.push_back(statement.text(0));
    }
    return columns;
}

std::string quotedName(std::string_view name) { return '"' + automation::replaceAll(name, "\"", "\"\"") + '"'; }

}  // namespace hx::sqlite
