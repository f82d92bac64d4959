// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/jet/database.h"
#include "adapters/sqlite/jet_storage.h"
#include "support/temporary_folder.h"

namespace hx::jet {

/// The path of a file in data/.
[[nodiscard]] std::string samplePath(const std::string& name);

/// A copy of a sample in a folder of its own.
class Sample {
  public:
    explicit Sample(const std::string& name);

    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    /// As it was at first.
    void reset() const;
    [[nodiscard]] std::string bytes() const;
    void write(const std::string& bytes) const;

  private:
    support::TemporaryFolder folder_;
    std::string name_, path_;
};

/// An open database.
class Opened {
  public:
    explicit Opened(const std::string& path) : storage_(path, wait_, automation::Language::english) {}

    Database& operator*() noexcept { return database_; }
    Database* operator->() noexcept { return &database_; }

  private:
    sqlite::LockWait wait_{sqlite::LockWait::Milliseconds(0), {}};
    sqlite::JetStorage storage_;
    Database database_{storage_, false};
};

/// One column of all rows, sorted.
[[nodiscard]] std::vector<std::string> textsOf(Database& database, const std::string& table, const std::string& column);
/// What is wrong, in English.
[[nodiscard]] std::vector<std::string> damagesOf(Database& database);

}  // namespace hx::jet
