// SPDX-License-Identifier: MIT
#include "adapters/sqlite/row_watch.h"

// Declares the pre-update hook, which Debian's library and ours for other systems are built with.
#define SQLITE_ENABLE_PREUPDATE_HOOK
#include <new>
#include <sqlite3.h>

#include "adapters/sqlite/statement.h"

namespace hx::sqlite {

RowWatch::RowWatch(sqlite3* handle, ado::RowWatcher& watcher) : handle_(handle), watcher_(watcher) {
    sqlite3_preupdate_hook(handle, &RowWatch::changes, this);
}

RowWatch::~RowWatch() { sqlite3_preupdate_hook(handle_, nullptr, nullptr); }

void RowWatch::changes(void* self, sqlite3*, int operation, const char* database, const char* table, long long before,
                       long long after) {
    if (std::string_view(database) != "main") return;
    auto& watch = *static_cast<RowWatch*>(self);
    try {
        watch.tell(operation, table, before, after);
    } catch (const std::bad_alloc&) {
        watch.watcher_.missed();
    }
}

// A row whose key is changed goes away under the one and comes under the other.
void RowWatch::tell(int operation, std::string_view table, ado::Key before, ado::Key after) {
    const auto columns = static_cast<std::size_t>(sqlite3_preupdate_count(handle_));
    before_.resize(operation == SQLITE_INSERT ? 0 : columns);
    after_.resize(operation == SQLITE_DELETE ? 0 : columns);
    fill(before_, &sqlite3_preupdate_old);
    fill(after_, &sqlite3_preupdate_new);
    if (operation == SQLITE_UPDATE && before != after) {
        watcher_.changed({table, before, before_, {}});
        return watcher_.changed({table, after, {}, after_});
    }
    watcher_.changed({table, operation == SQLITE_INSERT ? after : before, before_, after_});
}

void RowWatch::fill(std::vector<ado::StoredValue>& row, ValueGiver give) const {
    for (std::size_t i = 0; i < row.size(); ++i) {
        sqlite3_value* value = nullptr;
        if (give(handle_, static_cast<int>(i), &value) != SQLITE_OK) throw std::bad_alloc();
        putStored(row[i], value);
        const bool isText = row[i].kind == ado::StoredValue::Kind::text;
        if (isText && row[i].text.data() == nullptr) throw std::bad_alloc();
    }
}

}  // namespace hx::sqlite
