// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/jet/pages.h"

namespace hx::jet {

enum class ColumnType : Byte {
    yesNo = 1,
    byte = 2,
    integer = 3,
    longInteger = 4,
    currency = 5,
    single = 6,
    real = 7,
    date = 8,
    binary = 9,
    text = 10,
    ole = 11,
    memo = 12,
    guid = 15,
    decimal = 16
};

/// The bytes of a value, where all have as many; else 0.
[[nodiscard]] constexpr std::size_t sizeOf(ColumnType type) noexcept {
    switch (type) {
        case ColumnType::byte: return 1;
        case ColumnType::integer: return 2;
        case ColumnType::longInteger:
        case ColumnType::single: return 4;
        case ColumnType::currency:
        case ColumnType::real:
        case ColumnType::date: return 8;
        case ColumnType::guid: return 16;
        case ColumnType::decimal: return 17;
        default: return 0;
    }
}

struct Column {
    std::string name;
    ColumnType type{};
    std::uint16_t number = 0;    ///< its bit in a row's list of missing values; never given to another
    std::uint16_t variable = 0;  ///< its place among the columns without fixed length
    std::uint16_t offset = 0;    ///< in a row, of one with fixed length
    std::uint16_t length = 0;    ///< in bytes
    bool isFixed = false;
    bool isCounter = false;
    bool isPacked = false;                  ///< texts are stored in half the room where they can be
    std::uint8_t scale = 0, precision = 0;  ///< of a decimal
    std::uint16_t sortOrder = 0;
    std::uint8_t sortVersion = 0;
    std::optional<Place> ownPages, freePages;  ///< maps of the pages with its long values

    // From the properties of the table.
    std::string standard;  ///< expression of the value for new rows
    bool isRequired = false;

    [[nodiscard]] bool isLong() const noexcept { return type == ColumnType::memo || type == ColumnType::ole; }
    [[nodiscard]] bool isText() const noexcept { return type == ColumnType::memo || type == ColumnType::text; }
};

struct IndexColumn {
    std::size_t column = 0;  ///< of the table's columns
    bool descending = false;
};

struct Index {
    std::string name;  ///< of the first that uses it
    std::vector<IndexColumn> columns;
    std::uint32_t root = 0;
    Place ownPages;
    std::uint32_t number = 0;  ///< among the indexes of the table
    bool isUnique = false, ignoresNulls = false, isRequired = false, isPrimary = false;

    /// Ours, by its name: unique for rows whose last column of the index is a text that is not empty.
    static constexpr std::string_view uniqueButEmpty = "UniqueButEmpty";
    [[nodiscard]] bool isUniqueButEmpty() const noexcept { return name == uniqueButEmpty; }
};

/// An index that a relation uses.
struct Relation {
    std::string name;
    std::size_t index = 0;         ///< of the table's indexes
    std::uint32_t otherTable = 0;  ///< page of its definition
    std::uint32_t otherNumber = 0;
    bool isPrimary = false;  ///< the other table's rows refer to this one's
    bool cascadesUpdates = false, cascadesDeletes = false, cascadesNulls = false;
};

/// A table as the file declares it. What changes with its rows stands in the file alone.
struct TableDefinition {
    std::string name;
    std::uint32_t page = 0;
    std::vector<Column> columns;  ///< in the order of their numbers
    std::vector<Index> indexes;
    std::vector<Relation> relations;
    std::vector<std::pair<std::uint32_t, std::size_t>> indexNumbers;  ///< which of the indexes has which number
    Place ownPages, freePages;
    std::uint16_t columnsOfRow = 0, variablesOfRow = 0;  ///< that a new row has

    /// The column with this name, ignoring case.
    [[nodiscard]] std::optional<std::size_t> column(std::string_view wanted) const;

    /// Throws Damaged.
    [[nodiscard]] static TableDefinition read(Pages& pages, std::uint32_t page, std::string name);

    // Where in its first page the counts stand.
    static constexpr std::size_t rowsAt = 16, lastCounterAt = 20;
    [[nodiscard]] static constexpr std::size_t entriesAt(std::uint32_t index) noexcept { return 67 + index * 12; }
};

}  // namespace hx::jet
