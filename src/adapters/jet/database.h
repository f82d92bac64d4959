// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/jet/catalog.h"
#include "adapters/jet/table.h"

namespace hx::jet {

/// An open Jet 4 database. Everything throws automation::Error; Damaged says what is wrong without naming the file.
class Database {
  public:
    /// Throws what is said of a file of another format, of one that is encrypted or has a password.
    Database(Storage& storage, bool readOnly);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    [[nodiscard]] Pages& pages() noexcept { return pages_; }
    [[nodiscard]] Space& space() noexcept { return space_; }

    /// The tables of users, within a Reading. Valid until pages().generation() changes.
    [[nodiscard]] std::vector<std::string> tableNames();
    /// Null when there is no such table. Ignores case.
    [[nodiscard]] Table* table(std::string_view name);
    /// The table whose definition begins on the page.
    [[nodiscard]] Table& tableAt(std::uint32_t page);
    [[nodiscard]] const Catalog& catalog();

    /// Tables have been added or changed: they are looked for again.
    void forget() noexcept { generation_ = 0; }

    /// Is told each row that changes; null: nobody.
    void watch(ado::RowWatcher* watcher) noexcept { watcher_ = watcher; }
    [[nodiscard]] ado::RowWatcher* watcher() const noexcept { return watcher_; }

    /// What is wrong in the whole file, a sentence without its full stop each, at most so many.
    [[nodiscard]] std::vector<automation::Error> damages(int most);

  private:
    void refresh();

    Pages pages_;
    Space space_{pages_};
    std::uint64_t generation_ = 0;
    Catalog catalog_;
    std::deque<Table> tables_;
    ado::RowWatcher* watcher_ = nullptr;
};

}  // namespace hx::jet
