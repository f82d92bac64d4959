// SPDX-License-Identifier: MIT
#pragma once

struct sqlite3;

namespace hx::sqlite {

class JetMount;

/// Tables of a Jet project as SQLite's virtual tables: an index is used for equality on its first columns, the row's
/// number for itself and for ranges.
class JetModule {
  public:
    static constexpr const char* name = "hx_jet";

    /// SQLite's result code. The mount is lent to the connection.
    [[nodiscard]] static int install(sqlite3* connection, JetMount& mount);
};

}  // namespace hx::sqlite
