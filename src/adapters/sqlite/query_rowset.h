// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "adapters/sqlite/writes.h"

namespace hx::sqlite {

/// The rows of any other SELECT (joins, aggregates, TOP ...): read-only, and known by their number in the result, which
/// is worked out again for every page.
class QueryRowset : public ado::Rowset {
  public:
    /// Throws dbErrBadCommand or dbErrNoTable.
    QueryRowset(std::shared_ptr<Writes> writes, std::string sql);

    [[nodiscard]] const std::vector<ado::Column>& columns() const override { return columns_; }
    [[nodiscard]] ado::RowKeys keys(const ado::Criterion* criterion) override;
    void read(std::span<const ado::Key> keys, ado::ColumnMask mask, ado::RowSink& sink) override;
    void scan(std::span<const std::size_t> columns, const ado::StoredRowReceiver& receive) override;
    ado::Key insert(std::span<const ado::ColumnValue> values) override;
    void update(ado::Key key, std::span<const ado::ColumnValue> values,
                std::span<const ado::ColumnValue> read) override;
    void remove(ado::Key key) override;

  private:
    [[nodiscard]] std::string numbered(const std::string& what) const;

    std::shared_ptr<Writes> writes_;
    std::string sql_;
    std::vector<ado::Column> columns_;
};

}  // namespace hx::sqlite
