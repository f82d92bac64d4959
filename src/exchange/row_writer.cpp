// SPDX-License-Identifier: MIT
#include "exchange/row_writer.h"

#include <algorithm>
#include <charconv>

#include "ado/criterion.h"
#include "ado/row_edit.h"
#include "automation/text.h"
#include "hosting/text_file.h"
#include "hosting/visible.h"
#include "project/schema.h"

namespace hx::exchange {

namespace {

std::unique_ptr<ado::Rowset> openTable(ado::Session& session, std::string_view table) {
    try {
        return session.open(table, ado::adCmdTable);
    } catch (const automation::Error& error) {
        if (error.number() != ado::dbErrNoTable) throw;
        throw automation::Error(automation::errFail, "There is no table \"" + std::string(table) + "\".");
    }
}

// What the column takes, when the value is nothing like it; null and bytes are up to the database.
std::string_view expected(const ado::Column& column, const Value& value) {
    const bool whole = std::holds_alternative<std::int64_t>(value);
    const bool yesNo = std::holds_alternative<bool>(value);
    if (std::holds_alternative<std::monostate>(value) || std::holds_alternative<Blob>(value)) return {};
    switch (column.type) {
        case ado::adBoolean: return whole || yesNo ? "" : "true or false";
        case ado::adSmallInt:
        case ado::adInteger: return whole ? "" : "a whole number";
        case ado::adDouble: return whole || std::holds_alternative<double>(value) ? "" : "a number";
        default: return column.keepsAnything || std::holds_alternative<std::string>(value) ? "" : "a text";
    }
}

bool isTooLong(const ado::Column& column, const Value& value) {
    const auto* text = std::get_if<std::string>(&value);
    const std::size_t longest = ado::longestText(column);
    return longest > 0 && text != nullptr && automation::characterCount(*text) > longest;
}

// Of pairs of hexadecimal digits.
std::string bytesOf(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        unsigned byte = 0;
        std::from_chars(&digits[i], &digits[i] + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

}  // namespace

RowWriter::RowWriter(ado::Session& session, std::string_view table, std::string file)
    : table_(table), file_(std::move(file)), rows_(openTable(session, table)) {}

const ado::Column* RowWriter::findColumn(std::string_view name) const {
    const auto named = [&](const ado::Column& column) { return automation::equalIgnoreCase(column.name, name); };
    const auto found = std::ranges::find_if(rows_->columns(), named);
    return found == rows_->columns().end() ? nullptr : &*found;
}

std::size_t RowWriter::columnOf(std::string_view name) const {
    const ado::Column* column = findColumn(name);
    if (column != nullptr) return static_cast<std::size_t>(column - rows_->columns().data());
    throw automation::Error(ado::dbErrBadCommand,
                            "The table \"" + table_ + "\" has no column \"" + std::string(name) + "\".");
}

void RowWriter::check(const std::vector<Cell>& cells) const {
    for (const Cell& cell : cells) {
        const hosting::Line line{file_, cell.line, {}};
        const ado::Column* column = findColumn(cell.column);
        if (column == nullptr)
            line.fail(hosting::inQuotes(cell.column) + ": the table " + table_ + " has no such column");
        const std::string_view wanted = expected(*column, cell.value);
        if (!wanted.empty()) line.fail(hosting::inQuotes(cell.column) + ": " + std::string(wanted) + " is expected");
        if (isTooLong(*column, cell.value)) {
            line.fail(hosting::inQuotes(cell.column) + ": the text is longer than " +
                      std::to_string(column->definedSize) + " characters");
        }
    }
}

// Where the table's key is another column, or none.
ado::RowKeys RowWriter::keysOf(std::int64_t id) {
    ado::Criterion isIt;
    isIt.column = columnOf(project::schema::recipe::id);
    isIt.value = static_cast<double>(id);
    return rows_->keys(&isIt);
}

void RowWriter::collect(const std::vector<Cell>& cells) {
    columns_.clear();
    values_.clear();
    bytes_.clear();
    for (const Cell& cell : cells) {
        columns_.push_back(columnOf(cell.column));
        values_.push_back(stored(cell.value));
    }
}

// Bytes are kept for it.
ado::StoredValue RowWriter::stored(const Value& value) {
    using Kind = ado::StoredValue::Kind;
    if (const auto* flag = std::get_if<bool>(&value)) return ado::StoredValue::of(*flag ? 1 : 0);
    if (const auto* number = std::get_if<std::int64_t>(&value)) return ado::StoredValue::of(*number);
    if (const auto* real = std::get_if<double>(&value)) return {Kind::real, 0, *real, {}};
    if (const auto* text = std::get_if<std::string>(&value)) return {Kind::text, 0, 0, *text};
    const auto* blob = std::get_if<Blob>(&value);
    if (blob == nullptr) return {};
    return {Kind::bytes, 0, 0, bytes_.emplace_back(bytesOf(blob->digits))};
}

void RowWriter::insert(const std::vector<std::pair<std::string_view, std::int64_t>>& keys,
                       const std::vector<Cell>& cells, int line) {
    collect(cells);
    for (const auto& [column, number] : keys) {
        columns_.push_back(columnOf(column));
        values_.push_back(ado::StoredValue::of(number));
    }
    bool given = false;
    run(line, [&] {
        rows_->restore(columns_, [&](std::span<ado::StoredValue> row) {
            std::ranges::copy(values_, row.begin());
            return !std::exchange(given, true);
        });
    });
}

void RowWriter::update(std::int64_t id, const std::vector<Cell>& cells, int line) {
    collect(cells);
    const ado::RowKeys keys = keysOf(id);
    run(line, [&] {
        for (std::size_t i = 0; i < keys.size(); ++i) rows_->rewrite(keys[i], columns_, values_);
    });
}

void RowWriter::remove(std::int64_t id) {
    const ado::RowKeys keys = keysOf(id);
    for (std::size_t i = 0; i < keys.size(); ++i) rows_->remove(keys[i]);
}

void RowWriter::run(int line, const std::function<void()>& write) const {
    try {
        write();
    } catch (const automation::Error& error) {
        if (error.number() == ado::dbErrUnspecified) throw;  // the project's file is to blame
        hosting::Line{file_, line, {}}.fail(error.description());
    }
}

}  // namespace hx::exchange
