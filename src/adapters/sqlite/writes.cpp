// SPDX-License-Identifier: MIT
#include "adapters/sqlite/writes.h"

#include <optional>

#include "adapters/sqlite/duplicates.h"
#include "adapters/sqlite/jet_rows.h"
#include "adapters/sqlite/sentences.h"
#include "adapters/sqlite/transaction.h"
#include "automation/text.h"

namespace hx::sqlite {

using ado::ColumnValue;
using ado::Key;
using automation::Error;

namespace {

constexpr std::size_t rowsPerStatement = 64;

// What is not among the values the row holds already, when it has a key.
automation::Variant valueIn(Database& database, const TableInfo& table, std::span<const ado::Column> columns,
                            std::span<const ColumnValue> values, std::string_view column, std::optional<Key> key) {
    for (const ColumnValue& value : values) {
        if (automation::equalIgnoreCase(columns[value.column].name, column)) return value.value;
    }
    return key ? storedValue(database, table, column, *key) : automation::Variant();
}

// The values are asked for when they are needed.
template <typename Values>
void stepNamingDuplicates(Statement& statement, Database& database, const TableInfo& table,
                          std::span<const ado::Column> columns, const Values& values, std::optional<Key> key = {}) {
    const auto row = [&](std::string_view column) { return valueIn(database, table, columns, values(), column, key); };
    try {
        statement.step();
    } catch (const Error& error) {
        if (error.number() != ado::dbErrDuplicate) throw;
        throw namingDuplicate(error, database, table, row);
    }
}

void bindAll(Statement& statement, std::span<const ColumnValue> values) {
    int parameter = 0;
    for (const ColumnValue& value : values) statement.bind(++parameter, value.value);
}

void bindAll(Statement& statement, std::span<const ado::StoredValue> values) {
    int parameter = 0;
    for (const ado::StoredValue& value : values) statement.bind(++parameter, value);
}

std::vector<ColumnValue> namesOnly(std::span<const std::size_t> columns) {
    std::vector<ColumnValue> names(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) names[i].column = columns[i];
    return names;
}

// For a message.
std::vector<ColumnValue> named(std::span<const std::size_t> columns, std::span<const ado::StoredValue> values) {
    std::vector<ColumnValue> row = namesOnly(columns);
    for (std::size_t i = 0; i < row.size(); ++i) {
        row[i].value = values[i].isNumber() ? automation::Variant(values[i].real)
                                            : automation::Variant(std::string(values[i].text));
    }
    return row;
}

// `values` are those of one row.
std::string insertQuery(const TableInfo& table, std::span<const ado::Column> columns,
                        std::span<const ColumnValue> values, std::size_t rows = 1) {
    const std::string start = "INSERT INTO " + quotedName(table.name);
    if (values.empty()) return start + " DEFAULT VALUES";
    std::string names;
    std::string marks;
    for (const ColumnValue& value : values) {
        names += (names.empty() ? "" : ", ") + quotedName(columns[value.column].name);
        marks += marks.empty() ? "(?" : ", ?";
    }
    std::string query = start + " (" + names + ") VALUES " + marks + ")";
    for (std::size_t row = 1; row < rows; ++row) query += ", " + marks + ")";
    return query;
}

std::string updateQuery(const TableInfo& table, std::span<const ado::Column> columns,
                        std::span<const ColumnValue> values) {
    std::string assignments;
    for (const ColumnValue& value : values) {
        assignments += (assignments.empty() ? "" : ", ") + quotedName(columns[value.column].name) + " = ?";
    }
    return "UPDATE " + quotedName(table.name) + " SET " + assignments + " WHERE " + quotedName(table.key) + " = ?";
}

}  // namespace

// In a Jet project: an error that has left a change half done has lost the transaction.
template <typename Values, typename Change>
auto Writes::changeJet(const TableInfo& table, std::span<const ado::Column> columns, const Values& values,
                       std::optional<Key> key, Change&& change) {
    JetMount& jet = *database_.jet();
    try {
        JetRows rows(jet, table, columns);
        return jet.change([&] { return change(rows); });
    } catch (const Error& error) {
        if (database_.inTransaction() && !jet.project().pages().isWriting()) database_.loseTransaction(error);
        throw namingDuplicate(error, database_, table, [&](std::string_view column) {
            return valueIn(database_, table, columns, values(), column, key);
        });
    }
}

void Writes::requireChanged(bool changed) const {
    if (!changed) throw database_.error(ado::dbErrDeletedRow, sentence::rowDeleted);
}

Key Writes::insert(const TableInfo& table, std::span<const ado::Column> columns, std::span<const ColumnValue> values) {
    requireTransaction();
    if (database_.jet() != nullptr) {
        return changeJet(
            table, columns, [&] { return values; }, {}, [&](JetRows& rows) { return rows.insert(values); });
    }
    Statement& statement = database_.prepared(insertQuery(table, columns, values));
    const ResetGuard guard(statement);
    bindAll(statement, values);
    stepNamingDuplicates(statement, database_, table, columns, [&] { return values; });
    return database_.lastInsertedKey();
}

void Writes::insertAll(const TableInfo& table, std::span<const ado::Column> columns,
                       std::span<const std::size_t> assigned, ado::RowSource& rows) {
    if (database_.jet() != nullptr) return insertAllJet(table, columns, assigned, rows);
    const std::size_t width = assigned.size();
    std::vector<automation::Variant> row(width);
    std::vector<ColumnValue> values;
    values.reserve(rowsPerStatement * width);
    bool more = true;
    while (more) {
        std::size_t count = 0;
        for (; count < rowsPerStatement && (more = rows.next(row)); ++count) {
            for (std::size_t i = 0; i < width; ++i) values.push_back({assigned[i], std::move(row[i])});
        }
        insertTogether(table, columns, values, count);
        values.clear();
    }
}

void Writes::insertAllJet(const TableInfo& table, std::span<const ado::Column> columns,
                          std::span<const std::size_t> assigned, ado::RowSource& rows) {
    std::vector<automation::Variant> row(assigned.size());
    std::vector<ColumnValue> values = namesOnly(assigned);
    const auto insertEach = [&](JetRows& target) {
        while (rows.next(row)) {
            for (std::size_t i = 0; i < values.size(); ++i) values[i].value = std::move(row[i]);
            (void)target.insert(values);
        }
        return true;
    };
    requireTransaction();
    (void)changeJet(
        table, columns, [&] { return values; }, {}, insertEach);
}

// A statement takes much of its time for itself: for many rows it pays to share it.
void Writes::insertTogether(const TableInfo& table, std::span<const ado::Column> columns,
                            std::span<const ColumnValue> values, std::size_t rows) {
    const std::size_t width = rows == 0 ? 0 : values.size() / rows;
    const auto one = [&](std::size_t row) { return values.subspan(row * width, width); };
    if (rows == rowsPerStatement && width > 0) {
        requireTransaction();
        Statement& statement = database_.prepared(insertQuery(table, columns, one(0), rows));
        const ResetGuard guard(statement);
        bindAll(statement, values);
        try {
            statement.step();
            return;
        } catch (const Error& error) {
            // One by one they tell which value it was.
            if (error.number() != ado::dbErrDuplicate && error.number() != ado::dbErrIntegrity) throw;
        }
    }
    for (std::size_t row = 0; row < rows; ++row) (void)insert(table, columns, one(row));
}

void Writes::restore(const TableInfo& table, std::span<const ado::Column> columns,
                     std::span<const std::size_t> assigned, const ado::StoredRowSource& rows) {
    requireTransaction();
    std::vector<ado::StoredValue> row(assigned.size());
    if (database_.jet() != nullptr) {
        const auto insertEach = [&](JetRows& target) {
            while (rows(row)) target.restore(assigned, row);
            return true;
        };
        return void(changeJet(
            table, columns, [&] { return named(assigned, row); }, {}, insertEach));
    }
    Statement& statement = database_.prepared(insertQuery(table, columns, namesOnly(assigned)));
    while (rows(row)) {
        const ResetGuard guard(statement);
        bindAll(statement, row);
        stepNamingDuplicates(statement, database_, table, columns, [&] { return named(assigned, row); });
    }
}

void Writes::rewrite(const TableInfo& table, std::span<const ado::Column> columns, Key key,
                     std::span<const std::size_t> assigned, std::span<const ado::StoredValue> values) {
    requireTransaction();
    if (values.empty()) return;
    if (database_.jet() != nullptr) {
        return requireChanged(changeJet(
            table, columns, [&] { return named(assigned, values); }, key,
            [&](JetRows& rows) { return rows.rewrite(key, assigned, values); }));
    }
    Statement& statement = database_.prepared(updateQuery(table, columns, namesOnly(assigned)));
    const ResetGuard guard(statement);
    bindAll(statement, values);
    statement.bind(static_cast<int>(values.size()) + 1, key);
    stepNamingDuplicates(
        statement, database_, table, columns, [&] { return named(assigned, values); }, key);
    if (database_.changedRows() == 0) throw database_.error(ado::dbErrDeletedRow, sentence::rowDeleted);
}

// What was read is compared and replaced in one transaction.
void Writes::update(const TableInfo& table, std::span<const ado::Column> columns, Key key,
                    std::span<const ColumnValue> values, std::span<const ColumnValue> read) {
    requireTransaction();
    if (values.empty()) return;
    if (database_.jet() != nullptr) {
        return requireChanged(changeJet(
            table, columns, [&] { return values; }, key,
            [&](JetRows& rows) {
                requireRead(table, columns, key, read);
                return rows.update(key, values);
            }));
    }
    std::optional<Transaction> own;
    if (!database_.inTransaction()) own.emplace(database_);
    requireRead(table, columns, key, read);
    {
        Statement& statement = database_.prepared(updateQuery(table, columns, values));
        const ResetGuard guard(statement);
        bindAll(statement, values);
        statement.bind(static_cast<int>(values.size()) + 1, key);
        stepNamingDuplicates(
            statement, database_, table, columns, [&] { return values; }, key);
    }
    if (own) own->commit();
}

// By the values as they are read, not in SQL: another program may have stored them in another type.
void Writes::requireRead(const TableInfo& table, std::span<const ado::Column> columns, Key key,
                         std::span<const ColumnValue> read) {
    std::string names;
    for (const ColumnValue& value : read) names += quotedName(columns[value.column].name) + ", ";
    Statement& statement = database_.prepared("SELECT " + names + quotedName(table.key) + " FROM " +
                                              quotedName(table.name) + " WHERE " + quotedName(table.key) + " = ?");
    const ResetGuard guard(statement);
    statement.bind(1, key);
    if (!statement.step()) throw database_.error(ado::dbErrDeletedRow, sentence::rowDeleted);
    int number = 0;
    for (const ColumnValue& value : read) {
        const ado::Column& column = columns[value.column];
        if (!ado::sameValue(statement.value(number++, column.type), value.value)) {
            throw database_.error(ado::dbErrRowChanged, sentence::rowChanged, {database_.nameOf(column.name)});
        }
    }
}

void Writes::remove(const TableInfo& table, Key key) {
    requireTransaction();
    if (database_.jet() != nullptr) {
        return requireChanged(changeJet(
            table, table.columns, [] { return std::vector<ColumnValue>(); }, {},
            [&](JetRows& rows) { return rows.remove(key); }));
    }
    Statement& statement =
        database_.prepared("DELETE FROM " + quotedName(table.name) + " WHERE " + quotedName(table.key) + " = ?");
    const ResetGuard guard(statement);
    statement.bind(1, key);
    statement.step();
    if (database_.changedRows() == 0) throw database_.error(ado::dbErrDeletedRow, sentence::rowDeleted);
}

void Writes::execute(const std::string& sql) {
    requireTransaction();
    Statement& statement = database_.prepared(sql);
    const ResetGuard guard(statement);
    while (statement.step()) continue;
}

void Writes::begin(bool readOnly) {
    requireTransaction();
    // IMMEDIATE takes the lock now, while nothing has been written that a refusal would undo.
    database_.execute(readOnly ? "BEGIN" : "BEGIN IMMEDIATE");
    database_.expectTransaction(true);
    if (!readOnly) database_.useLargeCache(true);
}

void Writes::commit() {
    requireTransaction();
    database_.execute("COMMIT");
    database_.expectTransaction(false);
    database_.useLargeCache(false);
}

void Writes::rollback() {
    // After some errors (disk full, disk errors) SQLite has rolled back already.
    if (database_.inTransaction()) database_.execute("ROLLBACK");
    database_.expectTransaction(false);
    database_.useLargeCache(false);
}

// When SQLite has rolled a transaction back by itself, what follows must not be written as if it had not.
void Writes::requireTransaction() const {
    if (!database_.lostBy()) return;
    throw database_.error(ado::dbErrUnspecified, sentence::takenBack, {*database_.lostBy(), database_.path()});
}

}  // namespace hx::sqlite
