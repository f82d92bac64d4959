// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "adapters/jet/row.h"
#include "ado/stored_value.h"

namespace hx::jet {

/// The bytes of a column that is no long value as a value. Text is lent by `room`; so are numbers that a double cannot
/// hold, in digits, and GUIDs.
[[nodiscard]] ado::StoredValue valueOf(const Column& column, StoredColumn stored, std::string& room);

/// The value as the column's bytes, put behind what is there; false for a missing value. Throws dbErrCannotConvert when
/// the column cannot hold it. Of a long value the text or the bytes themselves.
[[nodiscard]] bool store(Buffer& to, const Column& column, const ado::StoredValue& value);

}  // namespace hx::jet
