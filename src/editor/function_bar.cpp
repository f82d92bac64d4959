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

namespace hx::editor {

namespace {

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

constexpr auto rows = std::to_array<ButtonRow>({
    {"New", pictures::create, newTools},
    {"Edit", pictures::edit, editTools},
    {"Delete", pictures::remove, deleteTools},
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
    : window_(window), menus_(menus), addIn_(addIn) {
    for (const ButtonRow& row : rows) {
        window.tbrfunc->addButton(std::string(row.key), row.picture()).separatorBefore = row.separatorBefore;
    }
    const auto follow = [this] { guard(addIn_, "tbrfunc", [this] { refresh(); }); };
    subscriptions_.push_back(
        window.tbrfunc->buttonClickEvent.subscribe([this](forms::ToolButton& button) { click(button); }));
    subscriptions_.push_back(window.tdbRM->selectedRows().changed.subscribe(follow));
    subscriptions_.push_back(window.tdbRM->currentCellChanged.subscribe(follow));
}

void FunctionBar::refresh() {
    for (const ButtonRow& row : rows) {
        forms::ToolButton& button = window_.tbrfunc->button(automation::Variant(row.key));
        const auto runs =
            std::ranges::find_if(row.tools, [&](std::string_view name) { return menus_.wouldEnable(name); });
        button.setEnabled(runs != row.tools.end());
        button.setToolTipText(plainCaption(menus_.tool(runs != row.tools.end() ? *runs : row.tools.front()).caption()));
    }
}

void FunctionBar::click(const forms::ToolButton& button) {
    guard(addIn_, "tbrfunc_ButtonClick", [&] {
        menus_.switchAgain();
        const auto row = std::ranges::find(rows, button.key(), &ButtonRow::key);
        const auto runs =
            std::ranges::find_if(row->tools, [&](std::string_view name) { return menus_.tool(name).enabled(); });
        if (runs == row->tools.end()) return window_.screen().beep();
        window_.abr_ToolClick(menus_.tool(*runs));
    });
}

}  // namespace hx::editor
