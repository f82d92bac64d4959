// SPDX-License-Identifier: MIT
#include "editor/tools.h"

#include <array>

namespace hx::editor {

namespace {

using enum forms::ToolKind;

constexpr std::string_view create = "New", edit = "Edit", remove = "Delete";

constexpr auto toolTable = std::to_array<ToolRow>({
    {band::main, tool::recipes, menu, 202, "", band::recipe},
    {band::main, tool::recipeMembers, menu, 210, "", band::member},
    {band::main, tool::options, menu, 220, "", band::option},
    {band::recipe, tool::recipeDescriptor, title, 203},
    {band::recipe, tool::recipeNew, command, 204, create},
    {band::recipe, tool::recipeEdit, command, 205, edit},
    {band::recipe, tool::recipeDelete, command, 206, remove},
    {band::member, tool::memberDescriptor, title, 211},
    {band::member, tool::memberNewVariable, command, 212, create},
    {band::member, tool::memberNewRecipe, command, 215, create},
    {band::member, tool::memberEditSubRecipe, command, 213},
    {band::member, tool::memberDelete, command, 214, remove},
    {band::option, tool::optionActualize, command, 221},
    {band::option, tool::optionsSep0, separator, 0},
    {band::option, tool::optionStatistik, command, 222},
    {band::option, tool::optionSep1, separator, 0},
    {band::option, tool::optionConfiguration, command, 225},
    {band::option, tool::optionOption, command, 223},
    {band::option, tool::optionReport, command, 224},
    {band::showEditorHelper, tool::showEditorSep, separator, 0},
    {band::showEditorHelper, tool::showEditor, command, 226},
});

constexpr auto shortcuts = std::to_array<ShortcutRow>({
    {"Edit", "F9", false},
    {"Copy", "Control+C", false},
    {"Paste", "Control+V", false},
    {"Delete", "Control+Delete", false},
    {"New", "F8", true},
});

}  // namespace

std::span<const ToolRow> toolRows() noexcept { return toolTable; }
std::span<const ShortcutRow> shortcutRows() noexcept { return shortcuts; }

}  // namespace hx::editor
