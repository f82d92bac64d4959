// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "ado/connection.h"
#include "ado/criterion.h"
#include "ado/key_list.h"

namespace hx::ado {

/// What a recordset and its clones share: the rowset, the list of all keys, and the knowledge of each other's writes.
class Keyset : public ConnectionClient {
  public:
    Keyset(std::shared_ptr<Connection> connection, std::unique_ptr<Rowset> rowset);
    ~Keyset() override;
    Keyset(const Keyset&) = delete;
    Keyset& operator=(const Keyset&) = delete;

    /// False once the connection has been closed.
    [[nodiscard]] bool isOpen() const noexcept { return rowset_ != nullptr; }
    [[nodiscard]] const std::vector<Column>& columns() const noexcept { return columns_; }

    [[nodiscard]] const std::shared_ptr<KeyList>& all() const noexcept { return all_; }
    [[nodiscard]] std::shared_ptr<KeyList> filtered(Criterion filter);

    // Writes, at once; every list learns of them. A new row is appended to the list that stored it and to all().
    Key insert(std::span<const ColumnValue> values, KeyList& storing);
    /// Many rows: the keys are then read afresh, also after an error.
    void insertAll(std::span<const std::size_t> columns, RowSource& rows);
    void update(Key key, std::span<const ColumnValue> values, std::span<const ColumnValue> read);
    void remove(Key key);
    /// Those of them that are rows here; what is gone already is passed over. After an error the rest is left.
    void remove(std::span<const Key> keys);

    /// Keys and rows are read afresh when next needed.
    void dropKeys();
    /// An order other than the command's: by what a column shows.
    struct Sorting {
        std::size_t column;
        std::function<std::string(const automation::Variant& value)> display;
        bool descending;
    };
    void sortBy(Sorting sorting);
    /// Whether they would be the same then.
    [[nodiscard]] bool isUpToDate() { return all_->holdsAt(databaseState()); }
    [[nodiscard]] std::optional<Connection::State> databaseState() { return connection_->databaseState(); }
    /// Rows are read afresh when next needed.
    void dropPages() noexcept;

    // For the lists.
    [[nodiscard]] RowKeys readKeys(const Criterion* filter);
    void readRows(std::span<const Key> keys, ColumnMask mask, RowSink& sink);
    /// Rowset::scan, or scanByKeys.
    void scan(const RowKeys* keys, std::span<const std::size_t> columns, const StoredRowReceiver& receive);
    [[nodiscard]] bool isInCommandOrder() const noexcept { return !sorting_; }
    /// Forgets what other writes on the connection have made old.
    void refresh() {
        if (seenWrites_ != connection_->writes()) forgetOld();
    }
    /// The columns that somebody has asked for: pages are read with all of them.
    [[nodiscard]] ColumnMask wanted() const noexcept { return wanted_; }
    void want(ColumnMask columns) noexcept;

    void connectionCloses() noexcept override;

  private:
    Rowset& rowset();
    [[nodiscard]] RowKeys sorted(RowKeys keys);
    void forgetOld();
    template <class Action>
    void write(Action&& action);
    template <class Action>
    void forEachList(Action&& action);

    std::shared_ptr<Connection> connection_;
    std::unique_ptr<Rowset> rowset_;
    std::vector<Column> columns_;
    std::shared_ptr<KeyList> all_;
    std::vector<std::weak_ptr<KeyList>> filtered_;
    std::optional<Sorting> sorting_;
    ColumnMask wanted_ = 0;
    int timesWidened_ = 0;
    std::uint64_t seenWrites_;
    std::uint64_t seenRollbacks_;
};

}  // namespace hx::ado
