// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "ado/recordset.h"

namespace hx::editor {

/// Opens the recordset as it is preset, reads how many records it has, and closes it. An open one is closed first, its
/// pending edit saved. Errors of the provider reach the caller; the recordset is then closed.
[[nodiscard]] std::int32_t countRecords(ado::Recordset& recordset);

}  // namespace hx::editor
