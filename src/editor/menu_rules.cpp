// SPDX-License-Identifier: MIT
#include "editor/menu_rules.h"

#include <algorithm>
#include <array>

#include "editor/tools.h"

namespace hx::editor {

namespace {

bool always(const MenuState&) { return true; }
bool root(const MenuState& state) { return state.root; }
bool recipe(const MenuState& state) { return state.recipe; }
bool subRecipes(const MenuState& state) { return state.subRecipes; }
bool rootOrRecipe(const MenuState& state) { return state.root || state.recipe; }
bool withMembers(const MenuState& state) { return state.subRecipes || state.recipe; }
bool statusLine(const MenuState& state) { return state.statusLine; }

constexpr auto rules = std::to_array<MenuRule>({
    {tool::recipes, Sets::enabled, rootOrRecipe},
    {tool::recipeMembers, Sets::enabled, withMembers},
    {tool::options, Sets::enabled, always},
    {tool::recipeDescriptor, Sets::visible,
     [](const MenuState& state) { return state.context && rootOrRecipe(state); }},
    {tool::recipeNew, Sets::both, root},
    {tool::recipeEdit, Sets::both, recipe},
    {tool::recipeDelete, Sets::both, recipe},
    {tool::memberDescriptor, Sets::visible, [](const MenuState& state) { return state.context && withMembers(state); }},
    {tool::memberNewVariable, Sets::both, recipe},
    {tool::memberNewRecipe, Sets::both, subRecipes},
    {tool::memberEditSubRecipe, Sets::both,
     [](const MenuState& state) { return state.subRecipes && state.currentRow; }},
    {tool::memberDelete, Sets::enabled,
     [](const MenuState& state) { return withMembers(state) && state.selectedRows; }},
    {tool::optionActualize, Sets::enabled, always},
    {tool::optionStatistik, Sets::enabled, statusLine},
    {tool::optionOption, Sets::enabled, always},
    {tool::optionReport, Sets::enabled, always},
});

}  // namespace

std::span<const MenuRule> menuRules() noexcept { return rules; }

bool enables(const MenuState& state, std::string_view tool) {
    return std::ranges::find(rules, tool, &MenuRule::tool)->value(state);
}

}  // namespace hx::editor
