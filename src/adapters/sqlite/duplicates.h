// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "adapters/sqlite/table_info.h"

namespace hx::sqlite {

/// What the refused row would hold in a column.
using RefusedRow = std::function<automation::Variant(std::string_view column)>;

/// The store says of a refused duplicate only the column: this says what there is already, in the words of the user.
/// Any other error stays as it is.
[[nodiscard]] automation::Error namingDuplicate(const automation::Error& error, const Database& database,
                                                const TableInfo& table, const RefusedRow& row);

/// What the row with this key holds in a column; null without such a row.
[[nodiscard]] automation::Variant storedValue(Database& database, const TableInfo& table, std::string_view column,
                                              ado::Key key);

}  // namespace hx::sqlite
