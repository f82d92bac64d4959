// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace hx::bench {

/// The recipe with the many members, and one of those with 9.
inline constexpr std::int32_t bigRecipe = 1;
inline constexpr std::int32_t smallRecipe = 2;

/// A generated project.
struct Project {
    std::string path;
    std::int64_t recipes = 0;  ///< with 9 members each
    std::int64_t big = 0;      ///< the members of the big recipe
};

/// Generates a project in the folder, or takes the one that an earlier run has left there.
[[nodiscard]] Project makeProject(const std::string& folder, std::int64_t recipes, std::int64_t big);

}  // namespace hx::bench
