// SPDX-License-Identifier: MIT
#include "adapters/sqlite/lock_wait.h"

#include <exception>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace hx::sqlite {

LockWait::LockWait(Milliseconds limit, Sleep sleep) : sleep_(std::move(sleep)), longest_(limit), limit_(limit) {
    if (!sleep_) sleep_ = [](Milliseconds time) { std::this_thread::sleep_for(time); };
}

void LockWait::serve(sqlite3* connection) noexcept {
    const auto busy = [](void* self, int earlierPauses) {
        try {
            return static_cast<LockWait*>(self)->wait(earlierPauses) ? 1 : 0;
        } catch (const std::exception&) {
            return 0;  // no exception may pass through SQLite's own code
        }
    };
    sqlite3_busy_handler(connection, busy, this);
}

bool LockWait::wait(int earlierPauses) {
    if (earlierPauses * pause >= limit_) {
        inVain_ = true;
        return false;
    }
    sleep_(pause);
    return true;
}

}  // namespace hx::sqlite
