// SPDX-License-Identifier: MIT
#include "ado/provider.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace hx::ado {

namespace {

bool fitsInt32(std::int64_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    return number >= Limits::min() && number <= Limits::max();
}

automation::Variant valueOf(const StoredValue& stored, DataType type) {
    using Kind = StoredValue::Kind;
    if (stored.kind == Kind::null) return automation::Null{};
    if (type == adBoolean) return stored.isTrue();
    if (stored.kind == Kind::integer && fitsInt32(stored.integer)) return static_cast<std::int32_t>(stored.integer);
    if (stored.isNumber()) return stored.real;
    return std::string(stored.text);
}

std::vector<ColumnValue> valuesOf(const Rowset& rows, std::span<const std::size_t> columns,
                                  std::span<const StoredValue> row) {
    std::vector<ColumnValue> values(columns.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = {columns[i], valueOf(row[i], rows.columns()[columns[i]].type)};
    }
    return values;
}

/// Passes the rows that are read on.
class Scan : public RowSink {
  public:
    Scan(std::span<const std::size_t> columns, const std::vector<Column>& all, const StoredRowReceiver& receive)
        : columns_(columns), all_(all), receive_(receive), values_(columns.size()) {}

    void start(std::span<const Key> keys) { keys_ = keys; }

    void row(std::size_t index, std::span<automation::Variant> values) override {
        const Key key = keys_[index];
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const bool isKey = all_[columns_[i]].isKey;
            values_[i] = isKey ? StoredValue{StoredValue::Kind::integer, key, static_cast<double>(key), {}}
                               : storedValue(values[columns_[i]]);
        }
        receive_(values_);
    }

  private:
    std::span<const std::size_t> columns_;
    const std::vector<Column>& all_;
    const StoredRowReceiver& receive_;
    std::vector<StoredValue> values_;
    std::span<const Key> keys_;
};

}  // namespace

StoredValue storedValue(const automation::Variant& value) {
    using Kind = StoredValue::Kind;
    using automation::VarType;
    switch (value.type()) {
        case VarType::boolean: return {Kind::integer, value.asBoolean(), value.asBoolean() ? 1.0 : 0.0, {}};
        case VarType::int16: return {Kind::integer, value.asInt16(), static_cast<double>(value.asInt16()), {}};
        case VarType::int32: return {Kind::integer, value.asInt32(), static_cast<double>(value.asInt32()), {}};
        case VarType::real8: return {Kind::real, static_cast<std::int64_t>(value.asDouble()), value.asDouble(), {}};
        case VarType::string: return {Kind::text, 0, 0, value.asString()};
        default: return {};
    }
}

std::vector<StoredValue> storedValues(std::span<const automation::Variant> values) {
    std::vector<StoredValue> stored;
    for (const automation::Variant& value : values) stored.push_back(storedValue(value));
    return stored;
}

bool sameValue(const automation::Variant& stored, const automation::Variant& read) {
    const auto notANumber = [](const automation::Variant& value) {
        return value.type() == automation::VarType::real8 && std::isnan(value.asDouble());
    };
    return stored == read || (notANumber(stored) && notANumber(read));
}

void scanByKeys(Rowset& rows, const RowKeys& keys, std::span<const std::size_t> columns,
                const StoredRowReceiver& receive) {
    ColumnMask mask = 0;
    for (const std::size_t column : columns) mask |= columnBit(column);
    Scan scan(columns, rows.columns(), receive);
    std::vector<Key> together;
    for (std::size_t at = 0; at < keys.size(); at += together.size()) {
        together.resize(std::min(rowsReadTogether, keys.size() - at));
        for (std::size_t i = 0; i < together.size(); ++i) together[i] = keys[at + i];
        scan.start(together);
        rows.read(together, mask, scan);
    }
}

std::vector<std::size_t> allColumns(const Rowset& rows) {
    std::vector<std::size_t> all(rows.columns().size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

void Rowset::scan(std::span<const std::size_t> columns, const StoredRowReceiver& receive) {
    scanByKeys(*this, keys(nullptr), columns, receive);
}

void Rowset::readStored(std::span<const Key> keys, const StoredRowReceiver& receive) {
    RowKeys asked;
    for (const Key key : keys) asked.append(key);
    scanByKeys(*this, asked, allColumns(*this), receive);
}

void Rowset::restore(std::span<const std::size_t> columns, const StoredRowSource& rows) {
    std::vector<StoredValue> row(columns.size());
    while (rows(row)) (void)insert(valuesOf(*this, columns, row));
}

void Rowset::rewrite(Key key, std::span<const std::size_t> columns, std::span<const StoredValue> values) {
    update(key, valuesOf(*this, columns, values), {});
}

Key Rowset::lastKey() {
    Key last = 0;
    const RowKeys all = keys(nullptr);
    for (std::size_t i = 0; i < all.size(); ++i) last = std::max(last, all[i]);
    return last;
}

void Rowset::insertAll(std::span<const std::size_t> columns, RowSource& rows) {
    std::vector<automation::Variant> row(columns.size());
    std::vector<ColumnValue> values(columns.size());
    while (rows.next(row)) {
        for (std::size_t i = 0; i < columns.size(); ++i) values[i] = {columns[i], std::move(row[i])};
        (void)insert(values);
    }
}

}  // namespace hx::ado
