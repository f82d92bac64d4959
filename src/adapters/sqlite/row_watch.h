// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "ado/provider.h"

struct sqlite3;
struct sqlite3_value;

namespace hx::sqlite {

/// Tells a watcher what the statements of one connection change in the tables of the file.
class RowWatch {
  public:
    /// Both are lent.
    RowWatch(sqlite3* handle, ado::RowWatcher& watcher);
    ~RowWatch();
    RowWatch(const RowWatch&) = delete;
    RowWatch& operator=(const RowWatch&) = delete;

    [[nodiscard]] ado::RowWatcher& watcher() const noexcept { return watcher_; }

  private:
    using ValueGiver = int (*)(sqlite3* handle, int column, sqlite3_value** value);
    static void changes(void* self, sqlite3* handle, int operation, const char* database, const char* table,
                        long long before, long long after);
    void tell(int operation, std::string_view table, ado::Key before, ado::Key after);
    void fill(std::vector<ado::StoredValue>& row, ValueGiver give) const;

    sqlite3* handle_;
    ado::RowWatcher& watcher_;
    std::vector<ado::StoredValue> before_, after_;
};

}  // namespace hx::sqlite
