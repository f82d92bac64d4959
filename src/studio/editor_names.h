// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// What of the editor the studio reaches by its names.
namespace hx::studio::editor_name {

inline constexpr std::string_view window = "frmtabgrid", grid = "tdbRM", bar = "abr", editRecipe = "mnuRecipeEdit";
inline constexpr std::string_view recipeDialog = "FRecipe";

}  // namespace hx::studio::editor_name
