// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/bytes.h"

namespace hx::jet {

/// What stands of a text in an index in the sort order "General (legacy)", behind the byte that says that there is one:
/// compared byte by byte the keys are in the order of the texts. `units` are UTF-16; the first 255 count.
void appendTextKey(Buffer& key, Bytes units, bool descending);

}  // namespace hx::jet
