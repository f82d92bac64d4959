// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "adapters/jet/storage.h"

namespace hx::jet {

/// The file NAME.ldb beside a project tells other programs who has it open: a record for each user, with the names of
/// his computer and his own. Ours stays as long as any program of ours has the project open, and counts in its record
/// how often one of them has changed the project.
class UserFile {
  public:
    /// Null in a folder that cannot be written, and when another program's file is there.
    [[nodiscard]] static std::unique_ptr<UserFile> open(Storage& storage);
    /// Takes the file away when nobody else of ours has the project open.
    ~UserFile();
    UserFile(const UserFile&) = delete;
    UserFile& operator=(const UserFile&) = delete;

    [[nodiscard]] std::int64_t changes();
    void countChange();

    /// The computer whose program has the project open and is none of ours; empty for none.
    [[nodiscard]] static std::string otherUser(Storage& storage);

  private:
    UserFile(Storage& storage, std::string path, std::unique_ptr<File> file);

    Storage& storage_;
    std::string path_;
    std::unique_ptr<File> file_;
};

}  // namespace hx::jet
