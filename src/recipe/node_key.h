// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The keys of the recipe branch in the explorer: a four-letter type and a decimal recipe ID.
namespace hx::recipe {

inline constexpr std::string_view prefixRoot = "RCPE";
inline constexpr std::string_view prefixRecipe = "RCPR";
inline constexpr std::string_view prefixSubRecipes = "RCPU";
inline constexpr std::string_view rootKey = "RCPE0";

[[nodiscard]] std::string_view KeyPrefix(std::string_view key) noexcept;
/// Whether it is the key of the branch's root, a recipe or its sub-recipes.
[[nodiscard]] bool isRecipeKey(std::string_view key) noexcept;
/// -1 for a key shorter than five characters; else the leading digits behind the type (0 when there are none, -1 when
/// they exceed 32 bits).
[[nodiscard]] std::int32_t KeyId(std::string_view key) noexcept;
[[nodiscard]] std::string_view KeyImage(std::string_view key) noexcept;
[[nodiscard]] std::int32_t KeyHelpContext(std::string_view key) noexcept;
[[nodiscard]] std::string makeKey(std::string_view prefix, std::int32_t id);

}  // namespace hx::recipe
