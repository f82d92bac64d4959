#include "adapters/sqlite/writes.h"

#include "automation/convert.h"

namespace hx::sqlite {

using ado::ColumnValue;
using ado::Key;
using automation::Error;

namespace {

// A refused duplicate names only the column; which value it was the caller knows.
template <class Action>
void namingDuplicates(const TableInfo& table, std::span<const ado::Column> columns, std::span<const ColumnValue> values,
                      Action&& action) {
    try {
        action();
    } catch (const Error& error) {
        if (error.number() != ado::dbErrDuplicate) throw;
        for (const ColumnValue& value : values) {
            const std::string& name = columns[value.column].name;
            if (error.description().find("\"" + table.name + "." + name + "\"") == std::string::npos) continue;
            throw Error(ado::dbErrDuplicate, "The value \"" + automation::toText(value.value) +
                                                 "\" exists already in column \"" + name + "\" of table \"" +
                                                 table.name + "\".");
        }
        throw;
    }
}

void bindAll(Statement& statement, std::span<const ColumnValue> values) {
    int parameter = 0;
    for (const ColumnValue& value : values) statement.bind(++parameter, value.value);
}

std::string insertQuery(const TableInfo& table, std::span<const ado::Column> columns,
                        std::span<const ColumnValue> values) {
    const std::string start = "INSERT INTO " + quotedName(table.name);
    if (values.empty()) return start + " DEFAULT VALUES";
    std::string names;
    std::string marks;
    for (const ColumnValue& value : values) {
        names += (names.empty() ? "" : ", ") + quotedName(columns[value.column].name);
        marks += marks.empty() ? "?" : ", ?";
    }
    return start + " (" + names + ") VALUES (" + marks + ")";
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

Key Writes::insert(const TableInfo& table, std::span<const ado::Column> columns, std::span<const ColumnValue> values) {
    requireTransaction();
    Statement& statement = database_.prepared(insertQuery(table, columns, values));
    const ResetGuard guard(statement);
    bindAll(statement, values);
    namingDuplicates(table, columns, values, [&] { statement.step(); });
    return database_.lastInsertedKey();
}

void Writes::update(const TableInfo& table, std::span<const ado::Column> columns, Key key,
                    std::span<const ColumnValue> values) {
    requireTransaction();
    if (values.empty()) return;
    Statement& statement = database_.prepared(updateQuery(table, columns, values));
    const ResetGuard guard(statement);
    bindAll(statement, values);
    statement.bind(static_cast<int>(values.size()) + 1, key);
    namingDuplicates(table, columns, values, [&] { statement.step(); });
    requireChanged(table, key);
}

void Writes::remove(const TableInfo& table, Key key) {
    requireTransaction();
    Statement& statement =
        database_.prepared("DELETE FROM " + quotedName(table.name) + " WHERE " + quotedName(table.key) + " = ?");
    const ResetGuard guard(statement);
    statement.bind(1, key);
    statement.step();
    requireChanged(table, key);
}

void Writes::execute(const std::string& sql) {
    requireTransaction();
    Statement& statement = database_.prepared(sql);
    const ResetGuard guard(statement);
    while (statement.step()) continue;
}

void Writes::begin() {
    requireTransaction();
    // IMMEDIATE takes the lock now, while nothing has been written that a refusal would undo.
    database_.execute("BEGIN IMMEDIATE");
    inTransaction_ = true;
}

void Writes::commit() {
    requireTransaction();
    database_.execute("COMMIT");
    inTransaction_ = false;
}

void Writes::rollback() {
    // After some errors (disk full, disk errors) SQLite has rolled back already.
    if (database_.inTransaction()) database_.execute("ROLLBACK");
    inTransaction_ = false;
}

// When SQLite has rolled a transaction back by itself, what follows must not be written as if it had not.
void Writes::requireTransaction() const {
    if (!inTransaction_ || database_.inTransaction()) return;
    throw Error(ado::dbErrUnspecified,
                "The changes to '" + database_.path() + "' were taken back after an error; nothing of them is stored.");
}

void Writes::requireChanged(const TableInfo& table, Key key) const {
    if (database_.changedRows() != 0) return;
    throw Error(ado::dbErrDeletedRow,
                "Row " + std::to_string(key) + " of table \"" + table.name + "\" has been deleted.");
}

}  // namespace hx::sqlite
