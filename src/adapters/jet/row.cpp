// SPDX-License-Identifier: MIT
#include "adapters/jet/row.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"

namespace hx::jet {

namespace {

constexpr std::size_t countSize = 2;

std::size_t maskSize(std::size_t columns) noexcept { return (columns + 7) / 8; }

void putFixed(Buffer& row, const TableDefinition& table, std::span<const StoredColumn> columns) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column& column = table.columns[i];
        if (!column.isFixed || column.type == ColumnType::yesNo) continue;
        const std::size_t at = countSize + column.offset;
        row.resize(std::max(row.size(), at + column.length));
        if (!columns[i]) continue;
        std::copy_n(columns[i]->begin(), std::min<std::size_t>(columns[i]->size(), column.length),
                    row.begin() + static_cast<std::ptrdiff_t>(at));
    }
}

// The offsets stand behind the values from the last to the first, the end of all values before them.
void putVariable(Buffer& row, const TableDefinition& table, std::span<const StoredColumn> columns) {
    const std::size_t count = table.variablesOfRow;
    std::vector<std::size_t> order(count, columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column& column = table.columns[i];
        if (!column.isFixed && column.type != ColumnType::yesNo && column.variable < count) order[column.variable] = i;
    }
    std::vector<std::size_t> offsets;
    for (const std::size_t i : order) {
        offsets.push_back(row.size());
        if (i < columns.size() && columns[i]) append(row, *columns[i]);
    }
    append16(row, static_cast<std::uint32_t>(row.size()));
    for (std::size_t i = count; i-- > 0;) append16(row, static_cast<std::uint32_t>(offsets[i]));
    append16(row, static_cast<std::uint32_t>(count));
}

void putMask(Buffer& row, const TableDefinition& table, std::span<const StoredColumn> columns) {
    const std::size_t at = row.size();
    row.resize(at + maskSize(table.columnsOfRow));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Column& column = table.columns[i];
        const bool set = column.type == ColumnType::yesNo ? columns[i] && !columns[i]->empty() : columns[i].has_value();
        if (set) row[at + column.number / 8] |= static_cast<Byte>(1 << column.number % 8);
    }
}

}  // namespace

Row::Row(Bytes bytes, const TableDefinition& table, std::uint32_t page) : bytes_(bytes), page_(page) {
    const auto need = [&](bool holds) { require(holds, page, sentence::noRow); };
    need(bytes.size() >= countSize);
    columns_ = get16(bytes.data());
    const std::size_t mask = maskSize(columns_);
    need(bytes.size() >= countSize + mask);
    maskAt_ = bytes.size() - mask;
    if (table.variablesOfRow == 0) return;
    need(maskAt_ >= countSize + 4);
    variables_ = get16(bytes.data() + maskAt_ - 2);
    need(maskAt_ >= countSize + 4 + std::size_t{variables_} * 2);
}

StoredColumn Row::column(const Column& column) const {
    const bool set = isSet(column.number);
    if (column.type == ColumnType::yesNo) return storedYesNo(set);
    if (!set) return std::nullopt;
    if (column.isFixed) {
        const std::size_t at = countSize + column.offset;
        require(at + column.length <= maskAt_ && column.length >= sizeOf(column.type), page_, sentence::noRow);
        return bytes_.subspan(at, column.length);
    }
    if (column.variable >= variables_) return std::nullopt;
    const std::size_t from = variable(column.variable), to = variable(column.variable + 1U);
    require(from <= to && to <= maskAt_ && to - from >= sizeOf(column.type), page_, sentence::noRow);
    return bytes_.subspan(from, to - from);
}

void buildRow(Buffer& row, const TableDefinition& table, std::span<const StoredColumn> columns) {
    row.clear();
    append16(row, table.columnsOfRow);
    putFixed(row, table, columns);
    if (table.variablesOfRow > 0) putVariable(row, table, columns);
    putMask(row, table, columns);
}

}  // namespace hx::jet
