#pragma once

#include <cstdint>
#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// What a generated project holds: `recipes` recipes with `members` variables spread evenly over them, and before them
/// one more recipe (number 1) with `bigMembers` variables when that is not 0.
///
/// Members are written in blocks that alternate between the big recipe and the others, so the big recipe's member
/// numbers have gaps; the others get their members one by one in turn.
struct GeneratePlan {
    std::int64_t recipes = 0;
    std::int64_t members = 0;
    std::int64_t bigMembers = 0;
    std::string path;
};

/// Throws automation::Error; there is then no file.
void generate(const GeneratePlan& plan, const Output& output);

}  // namespace hx::cli
