// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "ado/criterion.h"
#include "support/memory_command.h"
#include "support/memory_database.h"

namespace hx::support {

/// The rows of one table that a command selects.
class MemoryRowset : public ado::Rowset {
  public:
    /// Tells the one that `watcher` points to what it changes; null for nobody.
    MemoryRowset(MemoryDatabase& database, const MemoryCommand& command, ado::RowWatcher* const* watcher);

    [[nodiscard]] const std::vector<ado::Column>& columns() const override { return columns_; }
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion) override;
    void read(std::span<const ado::Key> keys, ado::ColumnMask mask, ado::RowSink& sink) override;
    ado::Key insert(std::span<const ado::ColumnValue> values) override;
    void update(ado::Key key, std::span<const ado::ColumnValue> values,
                std::span<const ado::ColumnValue> read) override;
    void remove(ado::Key key) override;
    [[nodiscard]] ado::Key lastKey() override { return table().lastKey(); }

  private:
    MemoryTable& table() { return database_.table(table_); }
    MemoryTable::Row projected(const MemoryTable::Row& row) const;
    std::vector<ado::ColumnValue> inTable(std::span<const ado::ColumnValue> values) const;
    template <class Action>
    ado::Key watched(std::optional<ado::Key> key, const Action& action);
    [[nodiscard]] bool before(const MemoryTable::Row& a, const MemoryTable::Row& b) const;

    MemoryDatabase& database_;  // by name, not by reference: a rollback puts other tables in place
    std::string table_;
    std::vector<ado::Column> columns_;
    std::vector<std::size_t> sources_;  // the table's column of each of ours
    std::optional<ado::Criterion> condition_;
    std::vector<std::pair<std::size_t, bool>> order_;
    ado::RowWatcher* const* watcher_;
};

}  // namespace hx::support
