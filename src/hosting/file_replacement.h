// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "hosting/disk.h"

namespace hx::hosting {

/// New contents of a file, written beside it, which take its place when they are whole: a reader, a crash and a power
/// failure find the old file or the new one, never a part. Links are followed, owner and permissions kept. What ended
/// programs have left of the same file is cleared away.
///
/// All throw automation::Error; until publish() the old file is untouched.
class FileReplacement {
  public:
    explicit FileReplacement(const Disk::Path& file, const Disk& disk = systemDisk());
    /// Takes away what was not published.
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Where the contents grow, for those who write them in another way than by write().
    [[nodiscard]] const Disk::Path& temporary() const noexcept { return temporary_; }
    void write(std::string_view bytes);

    /// An error after the file has taken its place says so: the disk may not keep it.
    void publish();
    /// The same, but replaces nothing: false when there is a file of that name by now.
    [[nodiscard]] bool publishNew();

  private:
    using Rename = std::error_code (Disk::*)(const Disk::Path&, const Disk::Path&) const;
    [[nodiscard]] std::error_code take(Rename rename);
    void create();

    const Disk& disk_;
    Disk::Path target_, temporary_;
    Disk::Handle file_ = Disk::none;
    bool published_ = false;
};

}  // namespace hx::hosting
