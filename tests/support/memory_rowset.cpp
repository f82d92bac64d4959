// SPDX-License-Identifier: MIT
#include "support/memory_rowset.h"

#include <algorithm>

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::support {

using ado::ColumnValue;
using ado::Key;
using automation::Error;
using automation::Variant;

namespace {

std::size_t columnOf(const MemoryTable& table, std::string_view name) {
    for (std::size_t i = 0; i < table.columns().size(); ++i) {
        if (automation::equalIgnoreCase(table.columns()[i].name, name)) return i;
    }
    throw Error(ado::dbErrBadCommand, "Table \"" + table.name() + "\" has no column \"" + std::string(name) + "\".");
}

std::strong_ordering compare(const Variant& a, const Variant& b) {
    if (a.isNull() || b.isNull()) return b.isNull() <=> a.isNull();
    if (a.isString() && b.isString()) return automation::compareIgnoreCase(a.asString(), b.asString());
    const double x = automation::toDouble(a);
    const double y = automation::toDouble(b);
    return x < y ? std::strong_ordering::less : x > y ? std::strong_ordering::greater : std::strong_ordering::equal;
}

std::optional<ado::Criterion> conditionOf(const MemoryTable& table, const std::string& text) {
    try {
        return ado::parseFilter(text, table.columns());
    } catch (const Error& error) {
        throw Error(ado::dbErrBadCommand, error.description());
    }
}

}  // namespace

MemoryRowset::MemoryRowset(MemoryDatabase& database, const MemoryCommand& command, ado::RowWatcher* const* watcher)
    : database_(database), table_(command.table), watcher_(watcher) {
    const MemoryTable& source = table();
    for (std::size_t i = 0; i < source.columns().size() && command.columns.empty(); ++i) sources_.push_back(i);
    for (const std::string& name : command.columns) sources_.push_back(columnOf(source, name));
    for (const std::size_t column : sources_) columns_.push_back(source.columns()[column]);
    for (const auto& [name, descending] : command.order) order_.emplace_back(columnOf(source, name), descending);
    condition_ = conditionOf(source, command.condition);
}

bool MemoryRowset::before(const MemoryTable::Row& a, const MemoryTable::Row& b) const {
    for (const auto& [column, descending] : order_) {
        const auto order = compare(a[column], b[column]);
        if (order != 0) return descending ? order > 0 : order < 0;
    }
    return false;
}

ado::RowKeys MemoryRowset::keys(const ado::Criterion* criterion) {
    std::vector<std::pair<Key, const MemoryTable::Row*>> found;
    for (const auto& [key, row] : table().rows()) {
        if (condition_ && !ado::matches(*condition_, row)) continue;
        if (criterion != nullptr && !ado::matches(*criterion, projected(row))) continue;
        found.emplace_back(key, &row);
    }
    std::stable_sort(found.begin(), found.end(),
                     [this](const auto& a, const auto& b) { return before(*a.second, *b.second); });
    ado::RowKeys keys;
    for (const auto& [key, row] : found) keys.append(key);
    return keys;
}

MemoryTable::Row MemoryRowset::projected(const MemoryTable::Row& row) const {
    MemoryTable::Row values;
    for (const std::size_t column : sources_) values.push_back(row[column]);
    return values;
}

void MemoryRowset::read(std::span<const Key> keys, ado::ColumnMask mask, ado::RowSink& sink) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const MemoryTable::Row* row = table().row(keys[i]);
        if (row == nullptr) continue;
        MemoryTable::Row values = projected(*row);
        for (std::size_t column = 0; column < values.size(); ++column) {
            if ((mask & ado::columnBit(column)) == 0) values[column] = {};
        }
        sink.row(i, values);
    }
}

std::vector<ColumnValue> MemoryRowset::inTable(std::span<const ColumnValue> values) const {
    std::vector<ColumnValue> translated(values.begin(), values.end());
    for (ColumnValue& value : translated) value.column = sources_[value.column];
    return translated;
}

Key MemoryRowset::insert(std::span<const ColumnValue> values) {
    return watched({}, [&] { return table().insert(inTable(values)); });
}

void MemoryRowset::update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read) {
    watched(key, [&] {
        table().update(key, inTable(values), inTable(read));
        return key;
    });
}

void MemoryRowset::remove(Key key) {
    watched(key, [&] {
        table().remove(key);
        return key;
    });
}

// The action gives the key of the row.
template <class Action>
Key MemoryRowset::watched(std::optional<Key> key, const Action& action) {
    if (*watcher_ == nullptr) return action();
    const auto rowOf = [this](Key wanted) {
        const MemoryTable::Row* row = table().row(wanted);
        return row == nullptr ? MemoryTable::Row() : *row;
    };
    const MemoryTable::Row before = key ? rowOf(*key) : MemoryTable::Row();
    const Key changed = action();
    const MemoryTable::Row after = rowOf(changed);
    (*watcher_)->changed({table().name(), changed, ado::storedValues(before), ado::storedValues(after)});
    (*watcher_)->kept();
    return changed;
}

}  // namespace hx::support
