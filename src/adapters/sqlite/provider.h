// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "adapters/sqlite/database.h"
#include "ado/provider.h"

namespace hx::sqlite {

/// Project files in SQLite. The connection string may name any provider; its "Data Source" is the file, "Mode" may
/// leave "Write" out to open it for reading only. Commands are in Jet SQL.
///
/// A file that is missing, a folder, no project, made by a newer program, locked or not permitted is a dbErrUnspecified
/// that says which.
class Provider : public ado::Provider {
  public:
    /// How files are opened; asked at each connect, since the language may change.
    using Options = std::function<OpenOptions()>;
    explicit Provider(Options options = [] { return OpenOptions(); }) : options_(std::move(options)) {}
    [[nodiscard]] std::unique_ptr<ado::Session> connect(std::string_view connectionString) override;
    [[nodiscard]] bool copy(std::string_view connectionString, const std::string& file) override;

  private:
    Options options_;
};

}  // namespace hx::sqlite
