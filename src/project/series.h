// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/recipe_writer.h"

namespace hx::project {

/// Recipes of one kind, by a pattern: "Tank {1..3}" stands for "Tank 1", "Tank 2" and "Tank 3", "{01..12}" for two
/// digits. A range in the name of a variable runs along: the first recipe gets its first number, and so on. Throws
/// automation::Error when the name has no range, one is too long, or one of a variable is not as long as the name's.
[[nodiscard]] std::vector<NewRecipe> expandSeries(std::string_view name, std::span<const std::string> variables);

/// So many recipes are made at most.
inline constexpr std::size_t longestSeries = 10'000;

}  // namespace hx::project
