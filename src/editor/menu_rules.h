// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace hx::editor {

/// What decides which tools can be used.
struct MenuState {
    bool root = false;        ///< the node is the root of the recipes
    bool recipe = false;      ///< ... a recipe
    bool subRecipes = false;  ///< ... the sub-recipes of a recipe
    bool context = false;     ///< a context menu is about to be shown
    bool currentRow = false;  ///< of the member grid
    bool selectedRows = false;
    bool statusLine = false;  ///< is visible
};

enum class Sets { enabled, visible, both };

/// One property, or both, of one tool; applied in the order of the table.
struct MenuRule {
    std::string_view tool;
    Sets sets;
    bool (*value)(const MenuState&);
};
[[nodiscard]] std::span<const MenuRule> menuRules() noexcept;

/// Whether its rule enables the tool; it has one.
[[nodiscard]] bool enables(const MenuState& state, std::string_view tool);

}  // namespace hx::editor
