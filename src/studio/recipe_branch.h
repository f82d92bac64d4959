// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

/// The nodes of the recipe editor's branch in the explorer, by their keys.
namespace hx::studio::branch {

inline constexpr std::string_view root = "RCPE0", recipe = "RCPR", subRecipes = "RCPU";

/// The key of a recipe's node, or of the node of its sub-recipes.
[[nodiscard]] inline std::string keyOf(std::string_view kind, std::int64_t id) {
    return std::string(kind) + std::to_string(id);
}

/// The recipe that a node of this kind stands for; 0 when it is of another kind.
[[nodiscard]] inline std::int64_t idOf(std::string_view kind, std::string_view key) {
    std::int64_t id = 0;
    if (key.starts_with(kind)) (void)std::from_chars(key.data() + kind.size(), key.data() + key.size(), id);
    return id;
}

}  // namespace hx::studio::branch
