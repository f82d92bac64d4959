// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "adapters/jet/row.h"

namespace hx::jet {

/// What stands in an index for a row, without the row's place: compared byte by byte, keys are in the order of the
/// index. `columns` has an entry for each column of the index; of a long text its beginning itself.
void appendKey(Buffer& key, const TableDefinition& table, const Index& index, std::span<const StoredColumn> columns);

/// The key's part for one column.
void appendKeyPart(Buffer& key, const Column& column, bool descending, StoredColumn stored);

/// Why keys of the column are not known; null when they are.
[[nodiscard]] bool hasKnownKeys(const Column& column) noexcept;

}  // namespace hx::jet
