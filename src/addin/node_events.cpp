// SPDX-License-Identifier: MIT
#include <array>
#include <optional>

#include "addin/call.h"
#include "addin/trap.h"
#include "forms/input.h"
#include "recipe/node_key.h"

namespace hx::addin {

namespace {

namespace key = forms::key;
namespace shift = forms::shift;

constexpr std::string_view recipeMenu = "mnuRecipe";

struct NodeMenu {
    std::string_view prefix;
    std::string_view popUp;     ///< band that a right click shows
    std::string_view commands;  ///< band that the command keys act on; empty for none
};

constexpr std::array<NodeMenu, 3> nodeMenus = {{
    {recipe::prefixRoot, recipeMenu, recipeMenu},
    {recipe::prefixRecipe, recipeMenu, recipeMenu},
    {recipe::prefixSubRecipes, "mnuShowEditorHelper", ""},
}};

const NodeMenu* menuOf(std::string_view nodeKey) {
    for (const NodeMenu& menu : nodeMenus) {
        if (menu.prefix == recipe::KeyPrefix(nodeKey)) return &menu;
    }
    return nullptr;
}

enum class KeyAction { beep, showSelected, command, help };

struct NodeKey {
    std::int16_t code;
    std::optional<std::int16_t> shift;  ///< none: with any shift state
    KeyAction action;
    std::string_view command = {};  ///< the end of the tool's name
};

constexpr std::array<NodeKey, 6> nodeKeys = {{
    {key::c, shift::ctrl, KeyAction::beep},
    {key::f6, {}, KeyAction::showSelected},
    {key::del, shift::ctrl, KeyAction::command, "Delete"},
    {key::f9, {}, KeyAction::command, "Edit"},
    {key::f8, {}, KeyAction::command, "New"},
    {key::f1, {}, KeyAction::help},
}};

const NodeKey* actionOf(std::int16_t code, std::int16_t shiftState) {
    for (const NodeKey& row : nodeKeys) {
        if (row.code == code && row.shift.value_or(shiftState) == shiftState) return &row;
    }
    return nullptr;
}

void popUp(editor::frmtabgrid& window, std::string_view band) {
    window.screen().popUp(*window.abr, window.abr->band(automation::Variant(band)));
}

std::string_view commandsOf(std::string_view nodeKey) {
    const NodeMenu* menu = menuOf(nodeKey);
    return menu == nullptr ? std::string_view() : menu->commands;
}

void runCommand(editor::frmtabgrid& window, std::string_view menu, std::string_view command) {
    forms::Band& band = window.abr->band(automation::Variant(menu));
    window.abr_ToolClick(band.tool(automation::Variant(std::string(menu) + std::string(command))));
}

// The window knows the root by its bare prefix too.
bool isSameNode(std::string_view one, std::string_view other) {
    const std::string_view prefix = recipe::KeyPrefix(one);
    return one == other || (prefix == recipe::prefixRoot && prefix == recipe::KeyPrefix(other));
}

}  // namespace

template <class Action>
void Connect::event(std::string_view procedure, Action&& action) noexcept {
    // A message box or a selection of the editor is open: what the explorer reports meanwhile is ignored.
    if (busy_) return;
    const Call call(*this, Call::From::studio);
    trap(services_.screen, procedure, std::forward<Action>(action));
}

// A window whose database could not be opened is not loaded: there is nothing to show in it.
std::shared_ptr<editor::frmtabgrid> Connect::openWindow() const {
    return editor_ && editor_->loaded() ? editor_ : nullptr;
}

void Connect::NodeClick(const host::NodeEvent& node) {
    event("Connect: NodeClick", [&] {
        OpenEditor();
        const auto window = openWindow();
        if (!window) return;
        window->chooseNode(node.key);
        window->explorerUsed();
    });
}

// What a key or button does with a node, it does with the node that the window shows. False when the window cannot show
// it: nothing must happen to another one instead.
bool Connect::reach(editor::frmtabgrid& window, const std::string& nodeKey) {
    if (!isSameNode(window.nodeKey(), nodeKey)) window.chooseNode(nodeKey);
    return isSameNode(window.nodeKey(), nodeKey);
}

void Connect::SelectNode(const std::string& nodeKey) {
    event("Connect: SelectNode", [&] {
        if (const auto window = openWindow()) window->showNode(nodeKey);
    });
}

void Connect::ShowSelectedNode() {
    if (explorer_ == nullptr) return;
    const host::NodeEvent node = explorer_->selectedNode();
    if (!node.key.empty()) NodeClick(node);
    const auto window = openWindow();
    if (!window) return;
    window->show();
    window->bringToFront();
}

void Connect::NodeDblClick(const host::NodeEvent&) {
    event("Connect: NodeDblClick", [&] {
        if (editor_) OpenEditor();  // one whose database could not be opened is tried again, and tells again
        const auto window = openWindow();
        if (!window) return;
        window->show();
        window->bringToFront();
    });
}

void Connect::NodeExpand(const host::NodeEvent&) {
    event("Connect: NodeExpand", [&] { OpenEditor(); });
}

void Connect::NodeMouseUp(const host::NodeEvent& node, const host::NodeMouse& mouse) {
    if (mouse.button != forms::button::right) return;
    event("Connect: NodeMouseUp", [&] {
        const auto window = openWindow();
        if (!window) return;
        const NodeMenu* menu = menuOf(node.key);
        if (menu == nullptr) return window->MenuSwitcher(node.key, false);
        if (!reach(*window, node.key)) return;
        window->MenuSwitcher(node.key, true);
        // Whatever becomes of the menu, the bar must not keep the entries made for it.
        trap(services_.screen, "Connect: NodeMouseUp", [&] { popUp(*window, menu->popUp); });
        // A command of the menu may have closed the window and opened another, or deleted the node and shown the next.
        if (const auto current = openWindow()) current->MenuSwitcher(current->nodeKey(), false);
    });
}

void Connect::NodeKeyDown(const host::NodeEvent& node, std::int16_t keyCode, std::int16_t shiftState) {
    const NodeKey* row = actionOf(keyCode, shiftState);
    if (row == nullptr) return;
    event("Connect: NodeKeyDown", [&] {
        if (row->action == KeyAction::beep) return services_.screen.beep();
        if (row->action == KeyAction::showSelected) {
            ShowSelectedNode();
            if (shiftState == shift::alt && explorer_ != nullptr) explorer_->activate();
            return;
        }
        // The keys come for every node of the explorer, also before there is an editor for them to act on.
        const auto window = openWindow();
        if (!window) return;
        if (row->action == KeyAction::command) {
            const std::string_view menu = commandsOf(node.key);
            if (!menu.empty() && reach(*window, node.key)) runCommand(*window, menu, row->command);
            return;
        }
        const std::int32_t context = recipe::KeyHelpContext(node.key);
        if (context != 0) help_.ShowHelp(window->handle(), context);
    });
}

}  // namespace hx::addin
