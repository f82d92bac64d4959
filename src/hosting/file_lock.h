// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "hosting/disk.h"

namespace hx::hosting {

/// While it lives no other program changes the file by changeFile(): between reading it and writing it anew, nothing
/// that another has written is lost. Where the file system has no locks there is none.
class FileLock {
  public:
    /// Waits for another who is at it as long as the file keeps changing; throws automation::Error after a file has
    /// been kept for so long without a change.
    explicit FileLock(const Disk::Path& file, const Disk& disk = systemDisk(),
                      std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

  private:
    const Disk& disk_;
    Disk::Handle lock_ = Disk::none;
};

}  // namespace hx::hosting
