// SPDX-License-Identifier: MIT
#pragma once

#include "history/history.h"
#include "studio/project.h"

namespace hx::studio {

/// Tells the editor of what was changed around it, by what every studio can: activation for a recipe's members, its own
/// command for the recipes themselves. What is open, selected and scrolled to stays.
class EditorRefresh {
  public:
    /// All are lent.
    EditorRefresh(StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree)
        : host_(host), explorer_(explorer), tree_(tree) {}

    /// Stores what has been typed. Throws automation::Error when it is refused.
    void finishEdit();
    /// After this step was undone or done again: the editor then shows where it was. Does nothing while there is no
    /// editor.
    void show(const Project& project, const history::StepName& step);

  private:
    void reopen(const Project& project);
    void activate(forms::Form& window);
    [[nodiscard]] forms::Form* editor() const;

    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
};

}  // namespace hx::studio
