// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Numbers of texts in the resource table that the code fetches by name. Captions of dialogs are fetched by the numbers
/// in the controls' Tags instead.
namespace hx::resources::text_id {

// explorer
inline constexpr std::int32_t recipes = 102, subRecipes = 103;
// names of what commands act on
inline constexpr std::int32_t recipe = 203, member = 211, subRecipe = 302;
// columns and dialogs
inline constexpr std::int32_t variable = 301, fileName = 303, openCaption = 310;
// editor window
inline constexpr std::int32_t title = 401, titleSeparator = 402, staleRow = 407, deleteRecipe = 410,
                              deleteMembers = 411, panels = 420;
inline constexpr std::int32_t panelFunction = 421, panelRecipes = 422, panelMembers = 423;
// messages
inline constexpr std::int32_t variableMissing = 510, recipeMissing = 511, notRead = 550, notWritten = 551;

/// Captions of the dialog FRecipe.
namespace recipe_dialog {
inline constexpr std::int32_t standard = 601, extended = 602, options = 640;
inline constexpr std::int32_t fileName = 604, description = 608, filePath = 622, fileExtension = 605, comment = 606,
                              active = 615;
inline constexpr std::int32_t loadTrigger = 609, saveTrigger = 611, readTrigger = 612, writeTrigger = 613;
inline constexpr std::int32_t values = 630, absolute = 631, relative = 632, normFactor = 633, factorVariable = 634;
inline constexpr std::int32_t writeThrough = 643, saveThrough = 644, saveSubRecipes = 635, saveChanges = 623,
                              crypted = 624;
}  // namespace recipe_dialog

}  // namespace hx::resources::text_id
