// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "forms/bar.h"

/// The bands and tools of the editor's bar.
namespace hx::editor {

namespace band {
inline constexpr std::string_view main = "mnuMain", recipe = "mnuRecipe", member = "mnuRecipeMember",
                                  option = "mnuOption", showEditorHelper = "mnuShowEditorHelper";
/// The bar's own band for customising it.
inline constexpr std::string_view customise = "SysCustomize";
}  // namespace band

namespace tool {
inline constexpr std::string_view recipes = "mnuRecipes", recipeMembers = "mnuRecipeMembers", options = "mnuOptions";
inline constexpr std::string_view recipeDescriptor = "mnuRecipeDescriptor", recipeNew = "mnuRecipeNew",
                                  recipeEdit = "mnuRecipeEdit", recipeDelete = "mnuRecipeDelete";
inline constexpr std::string_view memberDescriptor = "mnuRecipeMemberDescriptor",
                                  memberNewVariable = "mnuRecipeMemberNewVariable",
                                  memberNewRecipe = "mnuRecipeMemberNewRecipe",
                                  memberEditSubRecipe = "mnuRecipeMemberEditSubRecipe",
                                  memberDelete = "mnuRecipeMemberDelete";
inline constexpr std::string_view optionActualize = "mnuOptionActualize", optionsSep0 = "mnuOptionsSep0",
                                  optionStatistik = "mnuOptionStatistik", optionSep1 = "mnuOptionSep1",
                                  optionConfiguration = "mnuOptionConfiguration", optionOption = "mnuOptionOption",
                                  optionReport = "mnuOptionReport";
inline constexpr std::string_view showEditorSep = "mnuShowEditorSep", showEditor = "mnuShowEditor";
}  // namespace tool

/// A tool of a band, in the order of the bands and of the tools in them.
struct ToolRow {
    std::string_view band;
    std::string_view name;
    forms::ToolKind kind;
    std::int32_t caption;            ///< number of its text; 0 for none
    std::string_view category = {};  ///< decides its shortcut key
    std::string_view opens = {};     ///< the band of a menu
};
[[nodiscard]] std::span<const ToolRow> toolRows() noexcept;

/// The key of the tools of a category.
struct ShortcutRow {
    std::string_view category;
    std::string_view keys;
    bool onlyEnabled;  ///< a disabled tool of this category gets none
};
[[nodiscard]] std::span<const ShortcutRow> shortcutRows() noexcept;

}  // namespace hx::editor
