// SPDX-License-Identifier: MIT
#include "editor/commands.h"

#include <algorithm>
#include <array>

#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/tools.h"
#include "recipe/node_key.h"

namespace hx::editor {

namespace {

using Procedure = void (Commands::*)(std::int16_t);

struct ToolCommand {
    std::string_view tool;
    Procedure procedure;
    std::int16_t index;
};

// Macros and other add-ins know these numbers: they are never given to another command.
constexpr auto toolCommands = std::to_array<ToolCommand>({
    {tool::recipeNew, &Commands::mnuRecipeFunc, 0},
    {tool::recipeEdit, &Commands::mnuRecipeFunc, 1},
    {tool::recipeDelete, &Commands::mnuRecipeFunc, 2},
    {tool::memberNewVariable, &Commands::mnuRecipeMember, 0},
    {tool::memberNewRecipe, &Commands::mnuRecipeMember, 1},
    {tool::memberDelete, &Commands::mnuRecipeMember, 2},
    {tool::memberEditSubRecipe, &Commands::mnuRecipeMember, 3},
    {tool::optionStatistik, &Commands::mnuOption, 0},
    {tool::optionActualize, &Commands::mnuOption, 2},
    {tool::optionConfiguration, &Commands::mnuOption, 5},
    {tool::optionOption, &Commands::mnuOption, 6},
    {tool::optionReport, &Commands::mnuOption, 7},
    {tool::showEditor, &Commands::mnuShowEditor, 0},
});

}  // namespace

void Commands::runTool(std::string_view name) {
    for (const ToolCommand& row : toolCommands) {
        if (row.tool == name) return (this->*row.procedure)(row.index);
    }
}

bool Commands::showsOneOf(Nodes nodes) const {
    if (nodes == anyNode) return true;
    const std::string_view type = recipe::KeyPrefix(window_.nodeKey());
    return ((nodes & recipeNode) != 0 && type == recipe::prefixRecipe) ||
           ((nodes & subRecipesNode) != 0 && type == recipe::prefixSubRecipes);
}

void Commands::run(std::span<const Row> rows, std::int16_t index, std::string_view procedure) {
    const auto row = std::ranges::find(rows, index, &Row::index);
    if (row == rows.end() || !showsOneOf(row->nodes)) return;
    if (dialogOpen_) return window_.screen().beep();
    const auto keep = window_.share();  // it may end while a dialog is open, and an error is told under its name
    guard(addIn_, procedure, [this, command = row->command] { (this->*command)(); });
}

void Commands::mnuShowEditor(std::int16_t) {
    guard(addIn_, "mnuShowEditor", [this] {
        window_.show();
        window_.bringToFront();
    });
}

}  // namespace hx::editor
