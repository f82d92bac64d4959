// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "exchange/content.h"

namespace hx::exchange {

/// Writes rows of one table from cells. Errors name the file's line and field.
class RowWriter {
  public:
    /// Throws when there is no such table, or one whose rows cannot be told apart.
    RowWriter(ado::Session& session, std::string_view table, std::string file);

    /// Refuses cells of columns that the table has not, and values that do not fit.
    void check(const std::vector<Cell>& cells) const;
    /// `keys` are further whole-number columns. Every cell must have been checked.
    void insert(const std::vector<std::pair<std::string_view, std::int64_t>>& keys, const std::vector<Cell>& cells,
                int line);
    void update(std::int64_t id, const std::vector<Cell>& cells, int line);
    void remove(std::int64_t id);

    [[nodiscard]] bool has(std::int64_t id) { return !keysOf(id).empty(); }
    [[nodiscard]] std::int64_t lastId() { return rows_->lastKey(); }

  private:
    [[nodiscard]] const ado::Column* findColumn(std::string_view name) const;
    [[nodiscard]] std::size_t columnOf(std::string_view name) const;
    [[nodiscard]] ado::RowKeys keysOf(std::int64_t id);
    void collect(const std::vector<Cell>& cells);
    [[nodiscard]] ado::StoredValue stored(const Value& value);
    void run(int line, const std::function<void()>& write) const;

    std::string table_;
    std::string file_;
    std::unique_ptr<ado::Rowset> rows_;
    // Of the row that is written.
    std::vector<std::size_t> columns_;
    std::vector<ado::StoredValue> values_;
    std::deque<std::string> bytes_;
};

}  // namespace hx::exchange
