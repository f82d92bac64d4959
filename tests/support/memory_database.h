// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ado/provider.h"

namespace hx::support {

/// A column of a table in memory.
struct MemoryColumn {
    ado::Column column;
    automation::Variant defaultValue = automation::Null{};
    bool unique = false;  ///< ignoring case
};

/// A table in memory. Its first column is the key.
class MemoryTable {
  public:
    using Row = std::vector<automation::Variant>;

    /// What no two rows of the table share, beyond its unique columns; empty for a row that shares with any.
    using Identity = std::string (*)(const Row& row);

    MemoryTable(std::string name, std::vector<MemoryColumn> columns, Identity identity = nullptr);

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::vector<ado::Column>& columns() const { return columns_; }
    [[nodiscard]] const std::map<ado::Key, Row>& rows() const { return rows_; }
    [[nodiscard]] const Row* row(ado::Key key) const;
    [[nodiscard]] ado::Key lastKey() const { return lastKey_; }

    ado::Key insert(std::span<const ado::ColumnValue> values);
    void update(ado::Key key, std::span<const ado::ColumnValue> values, std::span<const ado::ColumnValue> read = {});
    void remove(ado::Key key);

  private:
    void requireUnique(ado::Key key, const Row& row) const;
    [[nodiscard]] std::string identityOf(const Row& row) const { return identity_ == nullptr ? "" : identity_(row); }
    Row& require(ado::Key key);

    std::string name_;
    std::vector<MemoryColumn> definitions_;
    std::vector<ado::Column> columns_;
    Identity identity_;
    std::map<std::string, ado::Key> identities_;
    std::map<ado::Key, Row> rows_;
    ado::Key lastKey_ = 0;
};

/// Tables in memory that any number of connections share.
class MemoryDatabase {
  public:
    MemoryTable& addTable(MemoryTable table);
    /// Throws dbErrNoTable.
    [[nodiscard]] MemoryTable& table(std::string_view name);

    /// The two recipe tables with all their columns and defaults, empty.
    [[nodiscard]] static MemoryDatabase withRecipeTables();

  private:
    std::vector<MemoryTable> tables_;
};

}  // namespace hx::support
