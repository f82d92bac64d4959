// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/jet/table_definition.h"
#include "automation/variant.h"

namespace hx::jet {

/// The value that a new row gets in the column: a text in quotes, a number, True or False. Null for none, and for an
/// expression that has to be worked out.
[[nodiscard]] automation::Variant standardValueOf(const Column& column);

}  // namespace hx::jet
