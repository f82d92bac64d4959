// SPDX-License-Identifier: MIT
#include "editor/menus.h"

#include <algorithm>
#include <array>

#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/tools.h"
#include "recipe/node_key.h"

namespace hx::editor {

using automation::Variant;

namespace {

/// The bar's entries for the names of the modifier keys, and their texts.
struct KeyName {
    std::int32_t entry;
    std::int32_t text;
};
constexpr std::array<KeyName, 3> keyNames = {{{43, 30}, {44, 31}, {42, 32}}};

std::string shortcutOf(const forms::Tool& tool) {
    for (const ShortcutRow& row : shortcutRows()) {
        if (row.category == tool.category()) return std::string(row.onlyEnabled && !tool.enabled() ? "" : row.keys);
    }
    return {};
}

}  // namespace

Menus::Menus(frmtabgrid& window, AddIn& addIn) : window_(window), addIn_(addIn) {
    buildBands();
    forms::Bar& bar = *window.abr;
    subscriptions_.push_back(bar.toolClickEvent.subscribe([this](forms::Tool& tool) { window_.abr_ToolClick(tool); }));
    subscriptions_.push_back(
        bar.bandOpenEvent.subscribe([this](forms::Band& band, bool& cancel) { openBand(band, cancel); }));
    subscriptions_.push_back(bar.menuOpeningEvent.subscribe([this](forms::Tool& tool) { menuOpening(tool); }));
}

void Menus::buildBands() {
    forms::Bar& bar = *window_.abr;
    forms::Band* current = nullptr;
    for (const ToolRow& row : toolRows()) {
        if (current == nullptr || current->name() != row.band) current = &bar.addBand(std::string(row.band));
        forms::Tool& tool = current->add(std::string(row.name), row.kind);
        tool.setResourceId(row.caption);
        tool.setCategory(std::string(row.category));
        tool.setSubBand(std::string(row.opens));
    }
    bar.setMainBand(std::string(band::main));
}

void Menus::localise() {
    for (const auto& band : window_.abr->bands()) {
        for (const auto& tool : band->tools()) {
            if (tool->resourceId() != 0) tool->setCaption(addIn_.texts().GetResource(tool->resourceId()));
        }
    }
}

forms::Tool& Menus::tool(std::string_view name) const {
    return window_.abr->band(Variant(band::main)).tool(Variant(name));
}

MenuState Menus::state(bool context) const {
    const std::string_view type = recipe::KeyPrefix(key_);
    forms::Grid& grid = *window_.tdbRM;
    return {.root = type == recipe::prefixRoot,
            .recipe = type == recipe::prefixRecipe,
            .subRecipes = type == recipe::prefixSubRecipes,
            .context = context,
            .currentRow = !grid.bookmark().isNull(),
            .selectedRows = grid.selectedRows().count() != 0,
            .statusLine = window_.sb->visible()};
}

void Menus::MenuSwitcher(const std::string& key, bool context) {
    key_ = key;
    const MenuState now = state(context);
    for (const MenuRule& rule : menuRules()) apply(rule, now);
    if (context != context_) showEditorEntry(context);
    context_ = context;
}

void Menus::apply(const MenuRule& rule, const MenuState& state) {
    forms::Tool& ruled = tool(rule.tool);
    const bool value = rule.value(state);
    if (rule.sets != Sets::visible) ruled.setEnabled(value);
    if (rule.sets != Sets::enabled) ruled.setVisible(value);
}

bool Menus::wouldEnable(std::string_view tool) const { return enables(state(false), tool); }

void Menus::showEditorEntry(bool shown) {
    forms::Band& main = window_.abr->band(Variant(band::main));
    const forms::Band& templates = window_.abr->band(Variant(band::showEditorHelper));
    for (const std::string_view name : {tool::showEditorSep, tool::showEditor}) {
        if (shown) main.insert(main.tools().size(), templates.tool(Variant(name)).copy());
        else main.remove(name);
    }
}

void Menus::openBand(forms::Band& band, bool& cancel) {
    cancel = true;
    if (band.name() == band::customise) return;
    const auto usable = [](const auto& tool) { return tool->enabled() && tool->visible(); };
    if (std::ranges::any_of(band.tools(), usable)) cancel = false;
    for (const KeyName& name : keyNames) {
        window_.abr->setLocalisation(name.entry, addIn_.texts().GetResource(name.text));
    }
    for (const auto& tool : band.tools()) tool->setShortcut(shortcutOf(*tool));
}

void Menus::menuOpening(const forms::Tool& tool) {
    if (tool.name() != tool::recipeMembers) return;
    guard(addIn_, "abr_MenuOpening", [&] { window_.MenuSwitcher(window_.nodeKey(), false); });
}

void Menus::runMemberTool(std::string_view name) {
    window_.tdbRM->settle();
    window_.MenuSwitcher(window_.nodeKey(), false);
    window_.abr_ToolClick(window_.abr->band(Variant(band::member)).tool(Variant(name)));
}

void Menus::popUpMembers() {
    const auto keep = window_.share();  // a command of the menu may close the window
    window_.MenuSwitcher(window_.nodeKey(), true);
    try {
        window_.screen().popUp(*window_.abr, window_.abr->band(Variant(band::member)));
    } catch (...) {
        window_.MenuSwitcher(window_.nodeKey(), false);
        throw;
    }
    window_.MenuSwitcher(window_.nodeKey(), false);
}

}  // namespace hx::editor
