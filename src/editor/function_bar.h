// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "editor/add_in.h"
#include "editor/bin.h"
#include "forms/tool_bar.h"

namespace hx::editor {

class frmtabgrid;
class Menus;

/// The buttons of the window's tool bar. Each stands for several tools of the bar: it runs the first one that can be
/// used for the shown node, the bin the one that deletes what the user is at, and shows that tool's caption as its tool
/// tip.
class FunctionBar {
  public:
    FunctionBar(frmtabgrid& window, Menus& menus, AddIn& addIn);

    /// Enables the buttons as the menus would enable their tools now.
    void refresh();
    /// The user is in the explorer.
    void explorerUsed();

  private:
    void click(const forms::ToolButton& button);
    [[nodiscard]] std::string_view toolOf(std::string_view button) const;

    frmtabgrid& window_;
    Menus& menus_;
    AddIn& addIn_;
    Bin bin_;
    std::vector<forms::Subscription> subscriptions_;
};

/// A caption as plain text: without access key marks and blanks at the ends.
[[nodiscard]] std::string plainCaption(std::string_view caption);

}  // namespace hx::editor
