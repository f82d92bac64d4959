// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/database.h"

namespace hx::sqlite {

/// Throws dbErrUnspecified, with the reason, unless the file is a project that this program can work in: not made by a
/// newer one, and its tables are tables that hold what is written into them. A view in the place of one, or a trigger
/// on it, would run whatever the file says, without end if it likes.
void requireProject(Database& database);

/// Throws dbErrUnspecified when the file is seen to be damaged. Takes some hundredths of a second at most: of a file
/// with more bytes than `checkedWhole` the recipes alone are read.
void requireUndamaged(Database& database, std::int64_t checkedWhole = 16 << 20);

/// What is said of a file that the check itself cannot read.
inline constexpr std::string_view unreadable = "it cannot be read any further";

/// What SQLite finds damaged in the whole file, a sentence without its full stop each, and at most so many. Whether the
/// indexes tell of the rows of their tables, which takes several times as long as all else, is looked at in files of up
/// to `comparedWhole` bytes.
[[nodiscard]] std::vector<std::string> damagesOf(Database& database, int most,
                                                 std::int64_t comparedWhole = std::numeric_limits<std::int64_t>::max());

/// A project that is open beside the session that works in it.
class ProjectDatabase : public Database {
  public:
    explicit ProjectDatabase(const std::string& path, const OpenOptions& options = {}) : Database(path, options) {
        requireProject(*this);
    }
};

}  // namespace hx::sqlite
