// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

struct sqlite3;

namespace hx::sqlite {

/// How a connection waits for a lock that another program holds. While it waits, the program's window is dead: who
/// reads waits once in vain, and then hardly at all until he has been let in again. Who writes always waits: somebody
/// has asked for it.
class LockWait {
  public:
    using Milliseconds = std::chrono::milliseconds;
    using Sleep = std::function<void(Milliseconds)>;

    /// Without a `sleep` the thread sleeps.
    LockWait(Milliseconds limit, Sleep sleep);
    /// SQLite keeps the address.
    LockWait(const LockWait&) = delete;
    LockWait& operator=(const LockWait&) = delete;

    void serve(sqlite3* connection) noexcept;
    /// A statement is about to be carried out.
    void begin(bool reading) noexcept { limit_ = reading && inVain_ ? shortest : longest_; }
    /// Waits a little, when it has not waited for long enough yet: false then.
    [[nodiscard]] bool again(int earlierPauses) { return wait(earlierPauses); }
    /// It got its lock.
    void letIn() noexcept { inVain_ = false; }

  private:
    static constexpr Milliseconds pause{5}, shortest{10};
    [[nodiscard]] bool wait(int earlierPauses);

    Sleep sleep_;
    Milliseconds longest_, limit_;
    bool inVain_ = false;
};

}  // namespace hx::sqlite
