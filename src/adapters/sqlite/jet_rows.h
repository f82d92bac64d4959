// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "adapters/sqlite/jet_mount.h"
#include "adapters/sqlite/table_info.h"
#include "ado/provider.h"

namespace hx::sqlite {

/// Reads and changes rows of a Jet table without a statement, which would take most of the time; what is changed is
/// told which values are given, also of those that are missing.
class JetRows {
  public:
    JetRows(JetMount& mount, const TableInfo& table, std::span<const ado::Column> columns);

    /// Gives these columns of all rows in the order of their keys.
    void scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive);
    ado::Key insert(std::span<const ado::ColumnValue> values);
    void restore(std::span<const std::size_t> columns, std::span<const ado::StoredValue> row);
    /// False when there is no such row, here and below.
    [[nodiscard]] bool update(ado::Key key, std::span<const ado::ColumnValue> values);
    [[nodiscard]] bool rewrite(ado::Key key, std::span<const std::size_t> columns,
                               std::span<const ado::StoredValue> row);
    [[nodiscard]] bool remove(ado::Key key);

  private:
    [[nodiscard]] jet::Table& table();
    void give(std::span<const ado::ColumnValue> values);
    void give(std::span<const std::size_t> columns, std::span<const ado::StoredValue> row);
    [[nodiscard]] bool change(ado::Key key);

    JetMount& mount_;
    const TableInfo& info_;
    std::vector<std::size_t> places_;  // of the rowset's columns in the table
    std::vector<std::optional<ado::StoredValue>> values_;
};

}  // namespace hx::sqlite
