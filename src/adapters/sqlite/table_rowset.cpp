// SPDX-License-Identifier: MIT
#include "adapters/sqlite/table_rowset.h"

#include <algorithm>

#include "adapters/sqlite/criterion_sql.h"
#include "adapters/sqlite/functions.h"
#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/jet_rows.h"
#include "adapters/sqlite/writes.h"
#include "automation/text.h"

namespace hx::sqlite {

using ado::ColumnMask;
using ado::ColumnValue;
using ado::Key;

namespace {

// Rows between two keys are read in one go when at most so many times as many keys lie between as are wanted.
constexpr std::uint64_t readAlong = 4;

// From a key to a greater one; a key has half of the numbers.
std::uint64_t distance(Key from, Key to) { return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from); }

void bindAll(Statement& statement, const std::vector<automation::Variant>& parameters) {
    for (std::size_t i = 0; i < parameters.size(); ++i) statement.bind(static_cast<int>(i + 1), parameters[i]);
}

// Rows of the same text stand in the order of their keys, those without a text before all others.
ado::RowKeys byText(Collection& found, bool descending) {
    std::vector<std::uint32_t> numbers = automation::inOrder(found.texts, descending);
    const auto key = [&](std::uint32_t number) { return found.keys[number]; };
    const auto text = [&](std::uint32_t number) { return found.texts[number]; };
    if (!found.keys.ascending()) {
        for (auto first = numbers.begin(), end = first; first != numbers.end(); first = end) {
            end = std::find_if(first, numbers.end(), [&](std::uint32_t next) { return text(next) != text(*first); });
            std::ranges::sort(first, end, {}, key);
        }
    }
    found.textless.sort(false);
    ado::RowKeys keys = descending ? ado::RowKeys() : found.textless;
    for (const std::uint32_t number : numbers) keys.append(key(number));
    for (std::size_t i = 0; descending && i < found.textless.size(); ++i) keys.append(found.textless[i]);
    return keys;
}

}  // namespace

TableRowset::TableRowset(std::shared_ptr<Writes> writes, TableInfo table, const TableSelect& select)
    : writes_(std::move(writes)), table_(std::move(table)), order_(select.order) {
    if (select.columns.empty()) columns_ = table_.columns;
    for (const std::string& name : select.columns) columns_.push_back(table_.columns[table_.requireColumn(name)]);
    for (const OrderTerm& term : order_) (void)table_.requireColumn(term.column);
    condition_ = translateCondition(select.condition, table_);
    row_.resize(columns_.size());
    if (!select.condition.empty()) (void)writes_->database().prepared(keysQuery(nullptr, order()).sql);
}

TableRowset::Order TableRowset::order() const {
    if (order_.empty()) return Order::ascendingKey;
    const OrderTerm& first = order_.front();
    if (automation::equalIgnoreCase(first.column, table_.key)) {
        return first.descending ? Order::descendingKey : Order::ascendingKey;
    }
    const bool text = order_.size() == 1 && isText(table_.columns[table_.requireColumn(first.column)]);
    return text ? Order::text : Order::other;
}

std::string TableRowset::orderClause() const {
    std::string clause = " ORDER BY ";
    for (const OrderTerm& term : order_) {
        const ado::Column& column = table_.columns[table_.requireColumn(term.column)];
        std::string value = quotedName(column.name);
        if (isText(column)) value += std::string(" COLLATE ") + textCollation;
        if (column.type == ado::adBoolean) value.insert(0, "(-(").append(" <> 0))");
        clause += value + (term.descending ? " DESC, " : ", ");
    }
    return clause + quotedName(table_.key);
}

BoundSql TableRowset::conditionWith(const ado::Criterion* criterion) const {
    BoundSql query = condition_;
    if (!query.sql.empty()) query.sql = "(" + query.sql + ")";
    if (criterion != nullptr) {
        if (!query.sql.empty()) query.sql += " AND ";
        appendCriterion(query, *criterion, columns_);
    }
    if (!query.sql.empty()) query.sql = " WHERE " + query.sql;
    return query;
}

// The keys come as they are found when the order is the key's own or that of one text: what is not in order then is
// sorted afterwards, which takes less time than SQLite's sorter. An aggregate that runs inside SQLite saves a call and
// a row for every key.
BoundSql TableRowset::keysQuery(const ado::Criterion* criterion, Order order) const {
    BoundSql query = conditionWith(criterion);
    std::string result = quotedName(table_.key);
    if (order == Order::text) result += ", " + quotedName(order_.front().column);
    if (order != Order::other) result = "hx_keys(" + result + ")";
    query.sql = "SELECT " + result + " FROM " + quotedName(table_.name) + query.sql;
    if (order == Order::other) query.sql += orderClause();
    return query;
}

ado::RowKeys TableRowset::keys(const ado::Criterion* criterion) { return keys(criterion, order()); }

ado::RowKeys TableRowset::keys(const ado::Criterion* criterion, Order order) {
    const BoundSql query = keysQuery(criterion, order);
    Statement& statement = writes_->database().prepared(query.sql);
    const ResetGuard guard(statement);
    bindAll(statement, query.parameters);
    ado::RowKeys keys;
    if (order == Order::other) {
        while (statement.step()) keys.append(statement.key(0));
        return keys;
    }
    Collection found = writes_->database().collect(statement);
    if (order == Order::text) {
        return found.onlyTexts ? byText(found, order_.front().descending) : this->keys(criterion, Order::other);
    }
    found.keys.sort(order == Order::descendingKey);
    return std::move(found.keys);
}

std::string TableRowset::readQuery() const {
    std::string query = "SELECT " + quotedName(table_.key);
    for (const std::size_t column : reading_) query += ", " + quotedName(columns_[column].name);
    return query + " FROM " + quotedName(table_.name) + " WHERE " + quotedName(table_.key);
}

void TableRowset::read(std::span<const Key> keys, ColumnMask mask, ado::RowSink& sink) {
    if (keys.empty()) return;
    reading_.clear();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        row_[i] = automation::Variant();
        if ((mask & ado::columnBit(i)) != 0 && !columns_[i].isKey) reading_.push_back(i);
    }
    const bool ascending = std::ranges::adjacent_find(keys, std::greater_equal<>()) == keys.end();
    const bool dense = ascending && distance(keys.front(), keys.back()) / readAlong <= keys.size();
    if (dense) readRange(readQuery(), keys, sink);
    else readEach(readQuery(), keys, sink);
}

void TableRowset::scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) {
    JetMount* const jet = writes_->database().jet();
    const bool all = condition_.sql.empty() && order() == Order::ascendingKey;
    if (jet != nullptr && all) return JetRows(*jet, table_, columns_).scan(columns, receive);
    const BoundSql condition = conditionWith(nullptr);
    std::string wanted;
    std::vector<std::size_t> places;
    for (const std::size_t column : columns) {
        wanted += (places.empty() ? "" : ", ") + quotedName(columns_[column].name);
        places.push_back(places.size());
    }
    Statement statement(writes_->database(),
                        "SELECT " + wanted + " FROM " + quotedName(table_.name) + condition.sql + orderClause());
    bindAll(statement, condition.parameters);
    statement.giveRows(places, receive);
}

void TableRowset::giveRow(Statement& statement, std::size_t index, ado::RowSink& sink) {
    int column = 1;
    for (const std::size_t i : reading_) row_[i] = statement.value(column++, columns_[i].type);
    sink.row(index, row_);
}

void TableRowset::readRange(const std::string& query, std::span<const Key> keys, ado::RowSink& sink) {
    Statement& statement = writes_->database().prepared(query + " BETWEEN ?1 AND ?2 ORDER BY 1");
    const ResetGuard guard(statement);
    statement.bind(1, keys.front());
    statement.bind(2, keys.back());
    std::size_t index = 0;
    while (statement.step()) {
        const Key found = statement.key(0);
        while (index < keys.size() && keys[index] < found) ++index;
        if (index < keys.size() && keys[index] == found) giveRow(statement, index, sink);
    }
}

void TableRowset::readEach(const std::string& query, std::span<const Key> keys, ado::RowSink& sink) {
    Statement& statement = writes_->database().prepared(query + " = ?1");
    for (std::size_t index = 0; index < keys.size(); ++index) {
        const ResetGuard guard(statement);
        statement.bind(1, keys[index]);
        if (statement.step()) giveRow(statement, index, sink);
    }
}

Key TableRowset::insert(std::span<const ColumnValue> values) { return writes_->insert(table_, columns_, values); }

void TableRowset::insertAll(std::span<const std::size_t> columns, ado::RowSource& rows) {
    writes_->insertAll(table_, columns_, columns, rows);
}

void TableRowset::update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read) {
    writes_->update(table_, columns_, key, values, read);
}

std::string TableRowset::allColumns() const {
    std::string names;
    for (const ado::Column& column : columns_) names += (names.empty() ? "" : ", ") + quotedName(column.name);
    return names;
}

void TableRowset::readStored(std::span<const Key> keys, const ado::StoredRowReceiver& receive) {
    Statement& statement = writes_->database().prepared("SELECT " + allColumns() + " FROM " + quotedName(table_.name) +
                                                        " WHERE " + quotedName(table_.key) + " = ?1");
    std::vector<ado::StoredValue> row(columns_.size());
    for (const Key key : keys) {
        const ResetGuard guard(statement);
        statement.bind(1, key);
        if (!statement.step()) continue;
        for (std::size_t i = 0; i < row.size(); ++i) statement.putStored(row[i], static_cast<int>(i));
        receive(row);
    }
}

void TableRowset::restore(std::span<const std::size_t> columns, const ado::StoredRowSource& rows) {
    writes_->restore(table_, columns_, columns, rows);
}

void TableRowset::rewrite(Key key, std::span<const std::size_t> columns, std::span<const ado::StoredValue> values) {
    writes_->rewrite(table_, columns_, key, columns, values);
}

Key TableRowset::lastKey() {
    Database& database = writes_->database();
    const Key last = database.number("SELECT max(" + quotedName(table_.key) + ") FROM " + quotedName(table_.name));
    if (JetMount* const jet = database.jet()) return std::max(last, jet->lastCounter(table_.name));
    const bool remembers = database.number("SELECT 1 FROM sqlite_schema WHERE name = 'sqlite_sequence'") != 0;
    if (!remembers) return last;
    Statement& given = database.prepared("SELECT seq FROM sqlite_sequence WHERE name = ?1");
    const ResetGuard guard(given);
    given.bind(1, automation::Variant(table_.name));
    return given.step() ? std::max(last, given.key(0)) : last;
}

void TableRowset::remove(Key key) { writes_->remove(table_, key); }

}  // namespace hx::sqlite
