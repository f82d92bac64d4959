// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/sqlite/database.h"
#include "ado/provider.h"

namespace hx::sqlite {

/// The ADO type that a declared column type stands for, with its size: INTEGER, SMALLINT, DOUBLE, BOOLEAN, VARCHAR(n),
/// LONGTEXT and their usual synonyms; anything else is long text.
[[nodiscard]] ado::Column columnOfType(std::string name, std::string_view declaredType);

[[nodiscard]] bool isText(const ado::Column& column);

/// A table as the file declares it.
struct TableInfo {
    std::string name;
    std::string key;  ///< the integer primary key, "rowid" when the table has none; empty when rows have no such key
    std::vector<ado::Column> columns;

    /// The column with this name, ignoring case.
    [[nodiscard]] std::optional<std::size_t> column(std::string_view wanted) const;
    /// Throws dbErrBadCommand.
    [[nodiscard]] std::size_t requireColumn(std::string_view wanted) const;

    /// Null when there is no such table or view.
    [[nodiscard]] static std::optional<TableInfo> read(Database& database, std::string_view name);
};

/// The text columns of a table whose values must differ ignoring case.
[[nodiscard]] std::vector<std::string> uniqueTextColumns(Database& database, const std::string& table);

/// A name as SQLite takes it, whatever characters it has.
[[nodiscard]] std::string quotedName(std::string_view name);

}  // namespace hx::sqlite
