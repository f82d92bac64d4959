// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/add_in.h"
#include "editor/menu_rules.h"
#include "forms/bar.h"

namespace hx::editor {

class frmtabgrid;

/// The bands of the window's bar: their tools, which of them can be used, and their shortcut keys.
class Menus {
  public:
    Menus(frmtabgrid& window, AddIn& addIn);

    /// Gives every tool its text in the current language.
    void localise();
    /// Enables and shows the tools for a node. A tool that the bar lacks is errBadIndex.
    void MenuSwitcher(const std::string& key, bool context);
    /// As for the last node, not for a context menu.
    void switchAgain() { MenuSwitcher(std::string(key_), false); }
    /// Whether MenuSwitcher would enable the tool now, for the last node.
    [[nodiscard]] bool wouldEnable(std::string_view tool) const;
    /// Any tool of the main band and of the bands that it opens; errBadIndex.
    [[nodiscard]] forms::Tool& tool(std::string_view name) const;

    /// Refreshes the menus for the window's node and runs a tool of the member band as if it was clicked.
    void runMemberTool(std::string_view name);
    /// Shows the member band as a context menu at the mouse.
    void popUpMembers();

  private:
    void buildBands();
    [[nodiscard]] MenuState state(bool context) const;
    void apply(const MenuRule& rule, const MenuState& state);
    void showEditorEntry(bool shown);
    void openBand(forms::Band& band, bool& cancel);
    void menuOpening(const forms::Tool& tool);

    frmtabgrid& window_;
    AddIn& addIn_;
    std::string key_;       // of the last switch
    bool context_ = false;  // flag of the last switch
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
