// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/storage.h"
#include "adapters/sqlite/lock_wait.h"
#include "automation/sentence.h"

struct sqlite3_vfs;

namespace hx::sqlite {

/// A Jet project and what stands beside it, read and written as SQLite reads and writes its own files: with the same
/// locks on every system, the same care for power failures, and the same words when something goes wrong.
class JetStorage : public jet::Storage {
  public:
    /// `wait` is lent.
    JetStorage(std::string path, LockWait& wait, automation::Language language);

    [[nodiscard]] const std::string& path() const noexcept override { return path_; }
    [[nodiscard]] std::unique_ptr<jet::File> open(Kind kind, const std::string& path) override;
    [[nodiscard]] bool exists(const std::string& path) override;
    void remove(const std::string& path) override;
    void removeOpen(std::unique_ptr<jet::File> file, const std::string& path) override;
    [[nodiscard]] bool wait(int earlierWaits) override;

    /// Throws unless the code is SQLITE_OK.
    void check(int code) const;

  private:
    std::string path_;
    LockWait& wait_;
    automation::Language language_;
    sqlite3_vfs* vfs_;
};

}  // namespace hx::sqlite
