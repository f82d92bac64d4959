// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <sqlite3.h>

namespace hx::sqlite {

/// A disk that fails while it exists: SQLite's files opened meanwhile go through it. Operations that change the disk
/// (write, sync, truncate, delete, opening a journal) are counted from 1.
class FaultDisk {
  public:
    enum class Fault {
        full,     ///< the n-th operation reports a full disk
        broken,   ///< the n-th operation reports an input/output error
        powerCut  ///< the n-th operation and all after it do nothing: what stands on the disk then is all there is
    };

    friend void PrintTo(Fault fault, std::ostream* stream) {
        *stream << (fault == Fault::full ? "Full" : fault == Fault::broken ? "Broken" : "PowerCut");
    }

    FaultDisk(Fault fault, int nth);
    ~FaultDisk();
    FaultDisk(const FaultDisk&) = delete;
    FaultDisk& operator=(const FaultDisk&) = delete;

    [[nodiscard]] bool fired() const noexcept { return count_ >= nth_; }

    /// SQLITE_OK, or the error that this operation ends with.
    [[nodiscard]] int pass() noexcept;
    [[nodiscard]] sqlite3_vfs& real() const noexcept { return *real_; }

  private:
    Fault fault_;
    int nth_;
    int count_ = 0;
    sqlite3_vfs* real_;
    sqlite3_vfs vfs_;
};

}  // namespace hx::sqlite
