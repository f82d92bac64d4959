// SPDX-License-Identifier: MIT
#include "adapters/sqlite/query_rowset.h"

#include <algorithm>

#include "adapters/sqlite/criterion_sql.h"

namespace hx::sqlite {

using ado::Key;

namespace {

constexpr const char* rowNumber = "hx_row_number";

// An expression has no declared type; its first value tells.
ado::Column describe(const Statement& statement, int column, bool hasRow) {
    const std::string declared = statement.declaredType(column);
    ado::Column described = columnOfType(statement.columnName(column), declared);
    if (declared.empty() && hasRow && statement.storedType(column) != ado::adEmpty) {
        described.type = statement.storedType(column);
        described.definedSize = described.type == ado::adInteger ? 4 : described.type == ado::adDouble ? 8 : 0;
    }
    described.updatable = false;
    return described;
}

[[noreturn]] void refuse() {
    throw automation::Error(ado::adErrIllegalOperation, "The result of this query cannot be changed.");
}

}  // namespace

QueryRowset::QueryRowset(std::shared_ptr<Writes> writes, std::string sql)
    : writes_(std::move(writes)), sql_(std::move(sql)) {
    Statement statement(writes_->database(), sql_);
    const bool hasRow = statement.step();
    for (int i = 0; i < statement.columnCount(); ++i) columns_.push_back(describe(statement, i, hasRow));
}

std::string QueryRowset::numbered(const std::string& what) const {
    return "SELECT " + what + " FROM (SELECT row_number() OVER () AS " + rowNumber + ", * FROM (" + sql_ + "))";
}

ado::RowKeys QueryRowset::keys(const ado::Criterion* criterion) {
    BoundSql query;
    query.sql = numbered(rowNumber);
    if (criterion != nullptr) {
        query.sql += " WHERE ";
        appendCriterion(query, *criterion, columns_);
    }
    Statement statement(writes_->database(), query.sql);
    for (std::size_t i = 0; i < query.parameters.size(); ++i) {
        statement.bind(static_cast<int>(i + 1), query.parameters[i]);
    }
    ado::RowKeys keys;
    while (statement.step()) keys.append(statement.key(0));
    keys.sort(false);
    return keys;
}

void QueryRowset::read(std::span<const Key> keys, ado::ColumnMask, ado::RowSink& sink) {
    if (keys.empty()) return;
    const auto [first, last] = std::ranges::minmax(keys);
    Statement statement(writes_->database(), numbered("*") + " WHERE " + rowNumber + " BETWEEN ?1 AND ?2");
    statement.bind(1, first);
    statement.bind(2, last);
    std::vector<automation::Variant> row(columns_.size());
    while (statement.step()) {
        const auto found = std::ranges::find(keys, statement.key(0));
        if (found == keys.end()) continue;
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = statement.value(static_cast<int>(i) + 1, columns_[i].type);
        }
        sink.row(static_cast<std::size_t>(found - keys.begin()), row);
    }
}

void QueryRowset::scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) {
    Statement(writes_->database(), sql_).giveRows(columns, receive);
}

Key QueryRowset::insert(std::span<const ado::ColumnValue>) { refuse(); }
void QueryRowset::update(Key, std::span<const ado::ColumnValue>, std::span<const ado::ColumnValue>) { refuse(); }
void QueryRowset::remove(Key) { refuse(); }

}  // namespace hx::sqlite
