// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "adapters/sqlite/jet_sql.h"

namespace hx::sqlite {

class Writes;

/// The rows of one table that a command selects; they have keys and can be changed.
class TableRowset : public ado::Rowset {
  public:
    /// Throws dbErrBadCommand for a column that the table does not have.
    TableRowset(std::shared_ptr<Writes> writes, TableInfo table, const TableSelect& select);

    [[nodiscard]] const std::vector<ado::Column>& columns() const override { return columns_; }
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion) override;
    void read(std::span<const ado::Key> keys, ado::ColumnMask mask, ado::RowSink& sink) override;
    void scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) override;
    ado::Key insert(std::span<const ado::ColumnValue> values) override;
    void insertAll(std::span<const std::size_t> columns, ado::RowSource& rows) override;
    void update(ado::Key key, std::span<const ado::ColumnValue> values,
                std::span<const ado::ColumnValue> read) override;
    void remove(ado::Key key) override;
    void readStored(std::span<const ado::Key> keys, const ado::StoredRowReceiver& receive) override;
    void restore(std::span<const std::size_t> columns, const ado::StoredRowSource& rows) override;
    void rewrite(ado::Key key, std::span<const std::size_t> columns, std::span<const ado::StoredValue> values) override;
    [[nodiscard]] ado::Key lastKey() override;

  private:
    enum class Order { ascendingKey, descendingKey, text, other };

    [[nodiscard]] Order order() const;
    [[nodiscard]] std::string orderClause() const;
    [[nodiscard]] BoundSql conditionWith(const ado::Criterion* criterion) const;
    [[nodiscard]] BoundSql keysQuery(const ado::Criterion* criterion, Order order) const;
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion, Order order);
    [[nodiscard]] std::string allColumns() const;
    [[nodiscard]] std::string readQuery() const;
    void giveRow(Statement& statement, std::size_t index, ado::RowSink& sink);
    void readRange(const std::string& query, std::span<const ado::Key> keys, ado::RowSink& sink);
    void readEach(const std::string& query, std::span<const ado::Key> keys, ado::RowSink& sink);

    std::shared_ptr<Writes> writes_;
    TableInfo table_;
    std::vector<ado::Column> columns_;
    std::vector<OrderTerm> order_;
    BoundSql condition_;
    std::vector<std::size_t> reading_;      // the columns that a read asks for, and
    std::vector<automation::Variant> row_;  // the row that it gives, used again for every row
};

}  // namespace hx::sqlite
