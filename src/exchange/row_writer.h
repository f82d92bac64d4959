// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "adapters/sqlite/duplicates.h"
#include "exchange/content.h"

namespace hx::exchange {

/// Writes rows of one table from cells. Errors name the file's line and field.
class RowWriter {
  public:
    RowWriter(sqlite::Database& database, std::string_view table, std::string file);

    /// Refuses cells of columns that the table has not, and values that do not fit.
    void check(const std::vector<Cell>& cells) const;
    /// `keys` are further whole-number columns. Every cell must have been checked.
    void insert(const std::vector<std::pair<std::string_view, std::int64_t>>& keys, const std::vector<Cell>& cells,
                int line);
    void update(std::int64_t id, const std::vector<Cell>& cells, int line);

  private:
    /// `others` gives what stands in the row's other columns.
    void run(const std::string& sql, const std::vector<Cell>& cells, const std::vector<std::int64_t>& numbers, int line,
             const sqlite::RefusedRow& others);

    sqlite::Database& database_;
    sqlite::TableInfo info_;
    std::vector<bool> isText_;  // for each column
    std::string file_;
};

}  // namespace hx::exchange
