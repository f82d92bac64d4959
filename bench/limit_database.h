// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>
#include <string>
#include <vector>

#include "bench/projects.h"

namespace hx::bench {

/// A project read and written through SQLite's C API with its usual settings, and nothing else.
class LimitDatabase {
  public:
    explicit LimitDatabase(const Project& project);
    ~LimitDatabase() { sqlite3_close(handle_); }
    LimitDatabase(const LimitDatabase&) = delete;
    LimitDatabase& operator=(const LimitDatabase&) = delete;

    /// Prepares and steps through a query whose parameters are whole numbers, reading every column.
    template <class... Number>
    void readAll(const std::string& sql, Number... parameters) {
        sqlite3_stmt* statement = prepare(sql);
        int index = 0;
        (sqlite3_bind_int64(statement, ++index, parameters), ...);
        step(statement);
    }
    /// The one number that a query gives.
    [[nodiscard]] std::int64_t number(const std::string& sql);
    /// Runs a statement that gives no rows.
    void execute(const std::string& sql);
    /// Adds variables to a recipe, in this order.
    void addMembers(std::int32_t recipe, const std::vector<std::string>& variables);

  private:
    sqlite3_stmt* prepare(const std::string& sql);
    void step(sqlite3_stmt* statement);
    void require(bool condition);

    sqlite3* handle_ = nullptr;
    std::int64_t sum_ = 0;  // so that nothing that is read can be left out
};

}  // namespace hx::bench
