// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

namespace hx::bench {

/// Measures projects of 10, 100, ... up to so many recipes, and of so many members in one recipe, and prints how the
/// costs grow. The projects are made in the folder.
void printGrowth(std::ostream& stream, const std::string& folder, std::int64_t recipes, std::int64_t members);

}  // namespace hx::bench
