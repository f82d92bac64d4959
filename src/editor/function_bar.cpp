// SPDX-License-Identifier: MIT
#include "editor/function_bar.h"

#include <algorithm>
#include <array>
#include <span>

#include "automation/text.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/menus.h"
#include "editor/pictures.h"
#include "editor/tools.h"
#include "resources/text_ids.h"

namespace hx::editor {

namespace {

constexpr std::string_view binKey = "Delete";
constexpr std::array newTools = {tool::recipeNew, tool::memberNewVariable, tool::memberNewRecipe};
constexpr std::array editTools = {tool::recipeEdit, tool::memberEditSubRecipe};
constexpr std::array deleteTools = {tool::memberDelete, tool::recipeDelete};
constexpr std::array refreshTools = {tool::optionActualize};

struct ButtonRow {
    std::string_view key;
    forms::Picture (*picture)();
    std::span<const std::string_view> tools;
    bool separatorBefore = false;
};

constexpr auto buttonRows = std::to_array<ButtonRow>({
    {"New", pictures::create, newTools},
    {"Edit", pictures::edit, editTools},
    {binKey, pictures::remove, deleteTools},
    {"Refresh", pictures::refresh, refreshTools, true},
});

}  // namespace

std::string plainCaption(std::string_view caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size()) break;
        plain += caption[i];
    }
    return std::string(automation::trim(plain));
}

FunctionBar::FunctionBar(frmtabgrid& window, Menus& menus, AddIn& addIn)
    : window_(window), menus_(menus), addIn_(addIn), bin_(window, menus, addIn) {
    for (const ButtonRow& row : buttonRows) {
        window.tbrfunc->addButton(std::string(row.key), row.picture()).separatorBefore = row.separatorBefore;
    }
    const auto follow = [this] {
        if (window_.loaded()) guard(addIn_, "tbrfunc", [this] { refresh(); });
    };
    subscriptions_.push_back(
        window.tbrfunc->buttonClickEvent.subscribe([this](forms::ToolButton& button) { click(button); }));
    forms::Grid& grid = *window.tdbRM;
    subscriptions_.push_back(grid.selectedRows().changed.subscribe(follow));
    subscriptions_.push_back(grid.currentCellChanged.subscribe(follow));
    subscriptions_.push_back(grid.focusEvent.subscribe([follow](bool) { follow(); }));
    subscriptions_.push_back(grid.rowChanged.subscribe([follow](std::int32_t) { follow(); }));
}

void FunctionBar::explorerUsed() {
    bin_.explorerUsed();
    refresh();
}

std::string_view FunctionBar::toolOf(std::string_view button) const {
    if (button == binKey) return bin_.tool();
    const auto& tools = std::ranges::find(buttonRows, button, &ButtonRow::key)->tools;
    const auto runs = std::ranges::find_if(tools, [&](std::string_view name) { return menus_.wouldEnable(name); });
    return runs != tools.end() ? *runs : std::string_view();
}

void FunctionBar::refresh() {
    for (const ButtonRow& row : buttonRows) {
        forms::ToolButton& button = window_.tbrfunc->button(automation::Variant(row.key));
        const std::string_view runs = toolOf(row.key);
        std::string tip = plainCaption(menus_.tool(runs.empty() ? row.tools.front() : runs).caption());
        if (row.key == binKey && !runs.empty() && window_.loaded())
            tip += addIn_.texts().GetResource(resources::text_id::titleSeparator) + bin_.target();
        button.setEnabled(!runs.empty());
        button.setToolTipText(tip);
    }
}

void FunctionBar::click(const forms::ToolButton& button) {
    guard(addIn_, "tbrfunc_ButtonClick", [&] {
        menus_.switchAgain();
        const std::string_view runs = toolOf(button.key());
        if (runs.empty()) return window_.screen().beep();
        if (button.key() == binKey) bin_.selectTarget();
        window_.abr_ToolClick(menus_.tool(runs));
    });
}

}  // namespace hx::editor
