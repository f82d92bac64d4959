// SPDX-License-Identifier: MIT
#include "adapters/jet/table_maker.h"

#include <algorithm>

#include "adapters/jet/data_page.h"
#include "adapters/jet/index_page.h"
#include "adapters/jet/utf16.h"

namespace hx::jet {

namespace {

constexpr std::uint32_t everyDefinition = 0x659, everyIndex = 0x783;
constexpr Byte userTable = 0x4E, systemTable = 0x53;
constexpr std::uint16_t generalOrder = 0x0409;
constexpr std::size_t columnsOfIndex = 10, headOfPart = 8;

void appendPlace(Buffer& to, Place place) {
    to.push_back(place.row);
    to.insert(to.end(),
              {static_cast<Byte>(place.page), static_cast<Byte>(place.page >> 8), static_cast<Byte>(place.page >> 16)});
}

void appendZeros(Buffer& to, std::size_t count) { to.resize(to.size() + count); }

void appendName(Buffer& to, const std::string& name) {
    Buffer units;
    appendUtf16(units, name);
    append16(to, static_cast<std::uint32_t>(units.size()));
    append(to, units);
}

bool isVariable(const Column& column) noexcept { return !column.isFixed; }

void appendColumn(Buffer& to, const Column& column) {
    to.push_back(static_cast<Byte>(column.type));
    append32(to, everyDefinition);
    append16(to, column.number);
    append16(to, column.variable);
    append16(to, column.number);
    append16(to, column.isText() ? generalOrder : 0);
    append16(to, 0);
    to.push_back(static_cast<Byte>(0x02 | (column.isFixed ? 0x01 : 0) | (column.isCounter ? 0x04 : 0)));
    to.push_back(column.isPacked ? 1 : 0);
    append32(to, 0);
    append16(to, column.offset);
    append16(to, column.isLong() ? 0 : column.length);
}

void appendIndex(Buffer& to, const TableDefinition& table, const Index& index) {
    append32(to, everyIndex);
    for (std::size_t i = 0; i < columnsOfIndex; ++i) {
        const bool used = i < index.columns.size();
        append16(to, used ? table.columns[index.columns[i].column].number : 0xFFFF);
        to.push_back(used && !index.columns[i].descending ? 1 : 0);
    }
    appendPlace(to, index.ownPages);
    append32(to, index.root);
    append32(to, 0);
    to.push_back(static_cast<Byte>(0x80 | (index.isUnique ? 0x01 : 0) | (index.ignoresNulls ? 0x02 : 0) |
                                   (index.isRequired ? 0x08 : 0)));
    appendZeros(to, 5);
}

void appendIndexName(Buffer& to, const Index& index) {
    append32(to, everyDefinition);
    append32(to, index.number);
    append32(to, index.number);
    to.push_back(0);
    append32(to, 0xFFFFFFFF);
    append32(to, 0);
    append16(to, 0);
    to.push_back(index.isPrimary ? 1 : 0);
    append32(to, 0);
}

}  // namespace

TablePlan& TablePlan::column(std::string name, ColumnType type, std::uint16_t characters) {
    Column column;
    column.name = std::move(name);
    column.type = type;
    column.isFixed = type == ColumnType::yesNo || sizeOf(type) > 0;
    column.length = type == ColumnType::yesNo ? 1 : static_cast<std::uint16_t>(sizeOf(type));
    if (type == ColumnType::text) column.length = static_cast<std::uint16_t>(characters * 2);
    if (type == ColumnType::binary) column.length = characters;
    column.isPacked = column.isText();
    definition_.columns.push_back(std::move(column));
    return *this;
}

TablePlan& TablePlan::counter(std::string name) {
    column(std::move(name), ColumnType::longInteger);
    definition_.columns.back().isCounter = true;
    return *this;
}

TablePlan& TablePlan::standard(std::string expression) {
    definition_.columns.back().standard = std::move(expression);
    return *this;
}

TablePlan& TablePlan::required() {
    definition_.columns.back().isRequired = true;
    return *this;
}

TablePlan& TablePlan::index(std::string name, std::initializer_list<std::string_view> columns, IndexKind kind) {
    Index index;
    index.name = std::move(name);
    index.number = static_cast<std::uint32_t>(definition_.indexes.size());
    for (const std::string_view column : columns) index.columns.push_back({definition_.column(column).value(), false});
    index.isUnique = kind.unique || kind.primary;
    index.isPrimary = index.isRequired = kind.primary;
    index.ignoresNulls = kind.ignoresNulls;
    definition_.indexes.push_back(std::move(index));
    return *this;
}

// Columns without fixed length: the long values stand behind the others.
void TablePlan::place() {
    std::uint16_t number = 0, offset = 0, variable = 0;
    for (Column& column : definition_.columns) {
        column.number = number++;
        if (!column.isFixed) continue;
        column.offset = offset;
        if (column.type != ColumnType::yesNo) offset = static_cast<std::uint16_t>(offset + column.length);
    }
    for (const bool isLong : {false, true}) {
        for (Column& column : definition_.columns) {
            if (isVariable(column) && column.isLong() == isLong) column.variable = variable++;
        }
    }
    definition_.columnsOfRow = number;
    definition_.variablesOfRow = variable;
}

void TablePlan::makeMaps(Pages& pages, Space& space, std::uint32_t page) {
    const PageRef maps = space.allocate();
    DataPage::make(maps, 0);
    const auto make = [&] {
        DataPage holder(maps);
        const std::uint32_t row = holder.add(UsageMap::rowSize);
        std::ranges::fill(holder.row(row), Byte{0});
        return Place{maps.number(), static_cast<std::uint8_t>(row)};
    };
    definition_.ownPages = make();
    definition_.freePages = make();
    for (Index& index : definition_.indexes) {
        index.ownPages = make();
        const PageRef root = space.allocate();
        IndexPage::make(root, page, true);
        index.root = root.number();
        UsageMap(pages, index.ownPages).add(index.root);
    }
    for (Column& column : definition_.columns) {
        if (!column.isLong()) continue;
        column.ownPages = make();
        column.freePages = make();
    }
}

Buffer TablePlan::bytes(bool isSystem) const {
    const TableDefinition& table = definition_;
    Buffer bytes{0x02, 0x01, 0, 0};
    appendZeros(bytes, 8);  // the next page, the length
    append32(bytes, everyDefinition);
    appendZeros(bytes, 8);  // rows, the last number
    bytes.push_back(1);
    appendZeros(bytes, 15);
    bytes.push_back(isSystem ? systemTable : userTable);
    append16(bytes, table.columnsOfRow);
    append16(bytes, table.variablesOfRow);
    append16(bytes, static_cast<std::uint32_t>(table.columns.size()));
    append32(bytes, static_cast<std::uint32_t>(table.indexes.size()));
    append32(bytes, static_cast<std::uint32_t>(table.indexes.size()));
    appendPlace(bytes, table.ownPages);
    appendPlace(bytes, table.freePages);
    appendZeros(bytes, table.indexes.size() * 12);
    for (const Column& column : table.columns) appendColumn(bytes, column);
    for (const Column& column : table.columns) appendName(bytes, column.name);
    for (const Index& index : table.indexes) appendIndex(bytes, table, index);
    for (const Index& index : table.indexes) appendIndexName(bytes, index);
    for (const Index& index : table.indexes) appendName(bytes, index.name);
    for (const Column& column : table.columns) {
        if (!column.isLong()) continue;
        append16(bytes, column.number);
        appendPlace(bytes, *column.ownPages);
        appendPlace(bytes, *column.freePages);
    }
    append16(bytes, 0xFFFF);
    put32(bytes.data() + 8, static_cast<std::uint32_t>(bytes.size()));
    return bytes;
}

void TablePlan::write(Pages& pages, Space& space, const PageRef& page, bool isSystem) {
    definition_.page = page.number();
    place();
    makeMaps(pages, space, page.number());
    const Buffer bytes = this->bytes(isSystem);
    Bytes rest(bytes);
    PageRef part = page;
    std::size_t at = 0;
    for (;;) {
        const std::size_t size = std::min<std::size_t>(rest.size(), pageSize - at);
        std::ranges::copy(rest.first(size), part.data() + at);
        rest = rest.subspan(size);
        const std::size_t left = pageSize - at - size;
        put16(part.data() + 2, static_cast<std::uint32_t>(left > headOfPart ? left - headOfPart : 0));
        if (rest.empty()) return;
        const PageRef next = space.allocate();
        put32(part.data() + 4, next.number());
        part = next;
        part.data()[0] = 0x02;
        part.data()[1] = 0x01;
        at = headOfPart;
    }
}

}  // namespace hx::jet
