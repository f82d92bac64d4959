// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

#include "ado/provider.h"

namespace hx::project {

/// What a generated project holds: `recipes` recipes with `members` variables spread evenly over them, and before them
/// one more recipe (number 1) with `bigMembers` variables when that is not 0.
///
/// Members are written in blocks that alternate between the big recipe and the others, so the big recipe's member
/// numbers have gaps; the others get their members one by one in turn.
struct GeneratorPlan {
    std::int64_t recipes = 0;
    std::int64_t members = 0;
    std::int64_t bigMembers = 0;

    [[nodiscard]] std::int64_t rows() const { return recipes + members + bigMembers; }  ///< but for the variable list
};

/// Fills the tables of an empty project, in one transaction. `progress` is told how many rows there are,
/// again and again; what it throws ends the work.
void generate(ado::Session& session, const GeneratorPlan& plan, const std::function<void(std::int64_t)>& progress);

}  // namespace hx::project
