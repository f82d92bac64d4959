// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "adapters/sqlite/jet_sql.h"
#include "ado/criterion.h"

namespace hx::sqlite {

/// Appends a condition that holds for the same rows as the criterion. Parameters continue those that `bound` has.
void appendCriterion(BoundSql& bound, const ado::Criterion& criterion, std::span<const ado::Column> columns);

}  // namespace hx::sqlite
