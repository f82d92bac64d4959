// SPDX-License-Identifier: MIT
#include "adapters/jet/table_definition.h"

#include <algorithm>

#include "adapters/jet/failure.h"
#include "adapters/jet/sentences.h"
#include "adapters/jet/utf16.h"
#include "automation/text.h"

namespace hx::jet {

namespace {

constexpr Byte definitionKind = 2;
constexpr std::size_t nextAt = 4, partHead = 8, lengthAt = 8;
constexpr std::uint32_t longestDefinition = 1 << 20;
constexpr std::size_t mostIndexes = 255, indexColumns = 10;
constexpr std::uint16_t noColumn = 0xFFFF;
constexpr std::uint16_t mostColumns = 255;

/// The pages of a definition as one, read from front to back.
class DefinitionReader {
  public:
    DefinitionReader(Pages& pages, std::uint32_t page) : page_(page) {
        std::uint32_t at = page;
        do {
            const PageRef part = pages.read(at);
            require(part.data()[0] == definitionKind && bytes_.size() < longestDefinition, at, sentence::noDefinition);
            append(bytes_, Bytes(part.data(), pageSize).subspan(bytes_.empty() ? 0 : partHead));
            at = get32(part.data() + nextAt);
        } while (at != 0);
        const std::size_t length = get32(bytes_.data() + lengthAt);
        require(length <= bytes_.size(), page, sentence::noDefinition);
    }

    const Byte* take(std::size_t size) {
        require(size <= bytes_.size() - at_, page_, sentence::noDefinition);
        at_ += size;
        return bytes_.data() + at_ - size;
    }
    std::uint16_t take16() { return get16(take(2)); }
    std::uint32_t take32() { return get32(take(4)); }
    std::string takeName() {
        const std::uint16_t size = take16();
        return utf8Of({take(size), size});
    }
    void need(bool holds) const { require(holds, page_, sentence::noDefinition); }

  private:
    std::uint32_t page_;
    Buffer bytes_;
    std::size_t at_ = 0;
};

struct Counts {
    std::size_t columns, indexNames, indexes;
};

Counts readHead(DefinitionReader& reader, TableDefinition& table) {
    const Byte* const head = reader.take(63);
    table.columnsOfRow = get16(head + 41);
    table.variablesOfRow = get16(head + 43);
    table.ownPages = Place::get(head + 55);
    table.freePages = Place::get(head + 59);
    const Counts counts{get16(head + 45), get32(head + 47), get32(head + 51)};
    reader.need(counts.columns <= mostColumns && counts.indexes <= mostIndexes && counts.indexNames <= mostIndexes);
    reader.need(table.columnsOfRow <= 4096 && table.variablesOfRow <= table.columnsOfRow);
    return counts;
}

Column columnOf(const Byte* at) {
    Column column;
    column.type = static_cast<ColumnType>(at[0]);
    column.number = get16(at + 5);
    column.variable = get16(at + 7);
    column.sortOrder = get16(at + 11);
    column.precision = at[11];
    column.scale = at[12];
    column.sortVersion = at[14];
    column.isFixed = (at[15] & 0x01) != 0;
    column.isCounter = (at[15] & 0x04) != 0;
    column.isPacked = (at[16] & 0x01) != 0;
    column.offset = get16(at + 21);
    column.length = get16(at + 23);
    return column;
}

void readColumns(DefinitionReader& reader, TableDefinition& table, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) table.columns.push_back(columnOf(reader.take(25)));
    for (Column& column : table.columns) column.name = reader.takeName();
    std::ranges::stable_sort(table.columns, {}, &Column::number);
    for (const Column& column : table.columns) reader.need(column.number < table.columnsOfRow);
}

std::size_t columnWithNumber(const DefinitionReader& reader, const TableDefinition& table, std::uint16_t number) {
    const auto found = std::ranges::find(table.columns, number, &Column::number);
    reader.need(found != table.columns.end());
    return static_cast<std::size_t>(found - table.columns.begin());
}

void readIndex(DefinitionReader& reader, TableDefinition& table) {
    Index index;
    index.number = static_cast<std::uint32_t>(table.indexes.size());
    reader.take(4);
    for (std::size_t i = 0; i < indexColumns; ++i) {
        const std::uint16_t number = reader.take16();
        const bool descending = (reader.take(1)[0] & 0x01) == 0;
        if (number != noColumn) index.columns.push_back({columnWithNumber(reader, table, number), descending});
    }
    reader.need(!index.columns.empty());
    index.ownPages = Place::get(reader.take(4));
    index.root = reader.take32();
    reader.take(4);
    const Byte flags = reader.take(6)[0];
    index.isUnique = (flags & 0x01) != 0;
    index.ignoresNulls = (flags & 0x02) != 0;
    index.isRequired = (flags & 0x08) != 0;
    table.indexes.push_back(std::move(index));
}

struct IndexName {
    std::size_t index;
    std::optional<Relation> relation;
    bool isPrimary;
};

IndexName readIndexName(DefinitionReader& reader, TableDefinition& table) {
    const Byte* const at = reader.take(28);
    IndexName named{get32(at + 8), {}, at[23] == 1};
    reader.need(named.index < table.indexes.size());
    table.indexNumbers.emplace_back(get32(at + 4), named.index);
    if (at[23] != 2) return named;
    named.relation = Relation{{}, named.index, get32(at + 17), get32(at + 13), at[12] == 1};
    named.relation->cascadesUpdates = (at[21] & 0x01) != 0;
    named.relation->cascadesDeletes = (at[22] & 0x01) != 0;
    named.relation->cascadesNulls = (at[22] & 0x02) != 0;
    return named;
}

void readIndexNames(DefinitionReader& reader, TableDefinition& table, std::size_t count) {
    std::vector<IndexName> all;
    for (std::size_t i = 0; i < count; ++i) all.push_back(readIndexName(reader, table));
    for (IndexName& named : all) {
        const std::string name = reader.takeName();
        Index& index = table.indexes[named.index];
        if (index.name.empty() || !named.relation) index.name = name;
        if (named.isPrimary) index.isPrimary = index.isUnique = index.isRequired = true;
        if (!named.relation) continue;
        named.relation->name = name;
        table.relations.push_back(*std::move(named.relation));
    }
}

void readLongValueMaps(DefinitionReader& reader, TableDefinition& table) {
    for (std::uint16_t number = reader.take16(); number != noColumn; number = reader.take16()) {
        Column& column = table.columns[columnWithNumber(reader, table, number)];
        column.ownPages = Place::get(reader.take(4));
        column.freePages = Place::get(reader.take(4));
    }
}

}  // namespace

std::optional<std::size_t> TableDefinition::column(std::string_view wanted) const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (automation::equalIgnoreCase(columns[i].name, wanted)) return i;
    }
    return std::nullopt;
}

TableDefinition TableDefinition::read(Pages& pages, std::uint32_t page, std::string name) {
    DefinitionReader reader(pages, page);
    TableDefinition table;
    table.name = std::move(name);
    table.page = page;
    const Counts counts = readHead(reader, table);
    reader.take(counts.indexes * 12);
    readColumns(reader, table, counts.columns);
    for (std::size_t i = 0; i < counts.indexes; ++i) readIndex(reader, table);
    readIndexNames(reader, table, counts.indexNames);
    readLongValueMaps(reader, table);
    return table;
}

}  // namespace hx::jet
