// SPDX-License-Identifier: MIT
#include "exchange/row_writer.h"

#include <algorithm>

#include "ado/row_edit.h"
#include "automation/text.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::exchange {

using automation::Variant;
using sqlite::quotedName;

namespace {

sqlite::TableInfo requireTable(sqlite::Database& database, std::string_view table) {
    if (auto info = sqlite::TableInfo::read(database, table)) return *info;
    throw automation::Error(automation::errFail, "There is no table \"" + std::string(table) + "\".");
}

// What the column takes, when the value is nothing like it; null and bytes are up to the database.
std::string_view expected(ado::DataType type, bool isText, const Value& value) {
    const bool whole = std::holds_alternative<std::int64_t>(value);
    const bool yesNo = std::holds_alternative<bool>(value);
    if (std::holds_alternative<std::monostate>(value) || std::holds_alternative<Blob>(value)) return {};
    switch (type) {
        case ado::adBoolean: return whole || yesNo ? "" : "true or false";
        case ado::adSmallInt:
        case ado::adInteger: return whole ? "" : "a whole number";
        case ado::adDouble: return whole || std::holds_alternative<double>(value) ? "" : "a number";
        default: return !isText || std::holds_alternative<std::string>(value) ? "" : "a text";
    }
}

// Only a column of text makes text of a number: one of which nothing else is known keeps what it is given.
std::vector<bool> textColumns(sqlite::Database& database, const sqlite::TableInfo& info) {
    sqlite::Statement& select = database.prepared(
        "SELECT type LIKE '%CHAR%' OR type LIKE '%CLOB%' OR type LIKE '%TEXT%' FROM pragma_table_info(?1)");
    const sqlite::ResetGuard guard(select);
    select.bind(1, Variant(info.name));
    std::vector<bool> isText;
    while (select.step()) isText.push_back(select.key(0) != 0);
    return isText;
}

bool isTooLong(const ado::Column& column, const Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    const std::size_t longest = ado::longestText(column);
    return longest > 0 && text != nullptr && automation::characterCount(*text) > longest;
}

void bind(sqlite::Statement& statement, int parameter, const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) statement.bind(parameter, std::int64_t{*flag ? 1 : 0});
    else if (const auto* number = std::get_if<std::int64_t>(&value)) statement.bind(parameter, *number);
    else if (const auto* real = std::get_if<double>(&value)) statement.bind(parameter, Variant(*real));
    else if (const auto* text = std::get_if<std::string>(&value)) statement.bind(parameter, Variant(*text));
    else statement.bind(parameter, Variant(automation::Null{}));
}

// For a message.
Variant variantOf(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return static_cast<double>(*number);
    return Variant(automation::Null{});
}

// Bytes cannot be bound; of hexadecimal digits they are a safe literal.
std::string placeholder(const Value& value, std::size_t parameter) {
    if (const auto* blob = std::get_if<Blob>(&value)) return "X'" + blob->digits + "'";
    return "?" + std::to_string(parameter);
}

}  // namespace

RowWriter::RowWriter(sqlite::Database& database, std::string_view table, std::string file)
    : database_(database),
      info_(requireTable(database, table)),
      isText_(textColumns(database, info_)),
      file_(std::move(file)) {}

void RowWriter::check(const std::vector<Cell>& cells) const {
    for (const Cell& cell : cells) {
        const hosting::Line line{file_, cell.line, {}};
        const auto column = info_.column(cell.column);
        if (!column) line.fail(hosting::inQuotes(cell.column) + ": the table " + info_.name + " has no such column");
        const std::string_view wanted = expected(info_.columns[*column].type, isText_[*column], cell.value);
        if (!wanted.empty()) line.fail(hosting::inQuotes(cell.column) + ": " + std::string(wanted) + " is expected");
        if (isTooLong(info_.columns[*column], cell.value)) {
            line.fail(hosting::inQuotes(cell.column) + ": the text is longer than " +
                      std::to_string(info_.columns[*column].definedSize) + " characters");
        }
    }
}

void RowWriter::insert(const std::vector<std::pair<std::string_view, std::int64_t>>& keys,
                       const std::vector<Cell>& cells, int line) {
    std::string columns;
    std::string values;
    const auto add = [&](std::string_view column, const std::string& value) {
        columns += (columns.empty() ? "" : ", ") + quotedName(column);
        values += (values.empty() ? "" : ", ") + value;
    };
    for (std::size_t i = 0; i < cells.size(); ++i) add(cells[i].column, placeholder(cells[i].value, i + 1));
    std::vector<std::int64_t> numbers;
    for (const auto& [column, value] : keys) {
        numbers.push_back(value);
        add(column, "?" + std::to_string(cells.size() + numbers.size()));
    }
    run("INSERT INTO " + quotedName(info_.name) + " (" + columns + ") VALUES (" + values + ")", cells, numbers, line,
        [&](std::string_view column) {
            for (const auto& [name, value] : keys) {
                if (automation::equalIgnoreCase(name, column)) return variantOf(value);
            }
            return Variant();
        });
}

void RowWriter::update(std::int64_t id, const std::vector<Cell>& cells, int line) {
    std::string changes;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        changes +=
            (changes.empty() ? "" : ", ") + quotedName(cells[i].column) + " = " + placeholder(cells[i].value, i + 1);
    }
    if (changes.empty()) return;
    const std::string key = "?" + std::to_string(cells.size() + 1);
    run("UPDATE " + quotedName(info_.name) + " SET " + changes + " WHERE " + std::string(project::schema::recipe::id) +
            " = " + key,
        cells, {id}, line, [&](std::string_view column) { return storedValue(database_, info_, column, id); });
}

void RowWriter::run(const std::string& sql, const std::vector<Cell>& cells, const std::vector<std::int64_t>& numbers,
                    int line, const sqlite::RefusedRow& others) {
    sqlite::Statement& statement = database_.prepared(sql);
    const sqlite::ResetGuard guard(statement);
    int parameter = 0;
    for (const Cell& cell : cells) {
        ++parameter;
        if (!std::holds_alternative<Blob>(cell.value)) bind(statement, parameter, cell.value);
    }
    for (const std::int64_t number : numbers) statement.bind(++parameter, number);
    try {
        statement.step();
    } catch (const automation::Error& error) {
        if (error.number() == ado::dbErrUnspecified) throw;  // the project's file is to blame
        const auto row = [&](std::string_view column) {
            for (const Cell& cell : cells) {
                if (automation::equalIgnoreCase(cell.column, column)) return variantOf(cell.value);
            }
            return others(column);
        };
        hosting::Line{file_, line, {}}.fail(sqlite::namingDuplicate(error, database_, info_, row).description());
    }
}

}  // namespace hx::exchange
