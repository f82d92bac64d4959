// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>

#include "adapters/sqlite/table_info.h"
#include "ado/provider.h"

namespace hx::sqlite {

/// The database of one session and all that changes it. A session and its rowsets share it.
class Writes {
  public:
    explicit Writes(const std::string& path, const OpenOptions& options = {}) : database_(path, options) {}

    [[nodiscard]] Database& database() noexcept { return database_; }

    ado::Key insert(const TableInfo& table, std::span<const ado::Column> columns,
                    std::span<const ado::ColumnValue> values);
    /// Many rows in one statement, as often as there are any left.
    void insertAll(const TableInfo& table, std::span<const ado::Column> columns, std::span<const std::size_t> assigned,
                   ado::RowSource& rows);
    void restore(const TableInfo& table, std::span<const ado::Column> columns, std::span<const std::size_t> assigned,
                 const ado::StoredRowSource& rows);
    void rewrite(const TableInfo& table, std::span<const ado::Column> columns, ado::Key key,
                 std::span<const std::size_t> assigned, std::span<const ado::StoredValue> values);
    void update(const TableInfo& table, std::span<const ado::Column> columns, ado::Key key,
                std::span<const ado::ColumnValue> values, std::span<const ado::ColumnValue> read);
    void remove(const TableInfo& table, ado::Key key);
    void execute(const std::string& sql);

    void begin(bool readOnly = false);
    void commit();
    void rollback();

  private:
    void insertTogether(const TableInfo& table, std::span<const ado::Column> columns,
                        std::span<const ado::ColumnValue> values, std::size_t rows);
    template <typename Values, typename Change>
    auto changeJet(const TableInfo& table, std::span<const ado::Column> columns, const Values& values,
                   std::optional<ado::Key> key, Change&& change);
    void insertAllJet(const TableInfo& table, std::span<const ado::Column> columns,
                      std::span<const std::size_t> assigned, ado::RowSource& rows);
    void requireChanged(bool changed) const;
    void requireTransaction() const;
    void requireRead(const TableInfo& table, std::span<const ado::Column> columns, ado::Key key,
                     std::span<const ado::ColumnValue> read);

    Database database_;
};

}  // namespace hx::sqlite
