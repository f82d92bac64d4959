// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "adapters/jet/table_definition.h"

namespace hx::jet {

/// Reads from a table's properties what its columns' values must be.
void applyProperties(TableDefinition& table, Bytes properties);

/// The properties that say the same.
[[nodiscard]] Buffer propertiesOf(const TableDefinition& table);

}  // namespace hx::jet
