// SPDX-License-Identifier: MIT
#include "adapters/sqlite/jet_rows.h"

#include <new>

namespace hx::sqlite {

JetRows::JetRows(JetMount& mount, const TableInfo& table, std::span<const ado::Column> columns)
    : mount_(mount), info_(table), values_(table.columns.size()) {
    for (const ado::Column& column : columns) places_.push_back(table.requireColumn(column.name));
}

jet::Table& JetRows::table() {
    if (mount_.isMissing(info_.name)) mount_.makeMissing();
    return mount_.table(info_.name);
}

void JetRows::scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) {
    const jet::Reading reading(mount_.project().pages());
    if (mount_.isMissing(info_.name)) return;
    jet::Table& table = mount_.table(info_.name);
    jet::Table::KeyScan rows(table);
    jet::Table::Found found;
    std::vector<ado::StoredValue> row(columns.size());
    std::vector<std::string> rooms(columns.size());
    const auto next = [&] {
        try {
            if (!rows.next(found)) return false;
            for (std::size_t i = 0; i < row.size(); ++i)
                new (&row[i]) ado::StoredValue(table.value(found.row, places_[columns[i]], rooms[i]));
            return true;
        } catch (...) {
            throw mount_.explained(std::current_exception());
        }
    };
    while (next()) receive(row);
}

void JetRows::give(std::span<const ado::ColumnValue> values) {
    values_.assign(values_.size(), std::nullopt);
    for (const ado::ColumnValue& value : values) values_[places_[value.column]] = ado::storedValue(value.value);
}

ado::Key JetRows::insert(std::span<const ado::ColumnValue> values) {
    give(values);
    return table().insert(values_);
}

void JetRows::give(std::span<const std::size_t> columns, std::span<const ado::StoredValue> row) {
    values_.assign(values_.size(), std::nullopt);
    for (std::size_t i = 0; i < row.size(); ++i) values_[places_[columns[i]]] = row[i];
}

bool JetRows::change(ado::Key key) {
    jet::Table& table = this->table();
    const auto place = table.find(key);
    return place && table.update(*place, values_);
}

void JetRows::restore(std::span<const std::size_t> columns, std::span<const ado::StoredValue> row) {
    give(columns, row);
    (void)table().insert(values_);
}

bool JetRows::update(ado::Key key, std::span<const ado::ColumnValue> values) {
    give(values);
    return change(key);
}

bool JetRows::rewrite(ado::Key key, std::span<const std::size_t> columns, std::span<const ado::StoredValue> row) {
    give(columns, row);
    return change(key);
}

bool JetRows::remove(ado::Key key) {
    jet::Table& table = this->table();
    const auto place = table.find(key);
    return place && table.remove(*place);
}

}  // namespace hx::sqlite
