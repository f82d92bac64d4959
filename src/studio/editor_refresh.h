// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <optional>

#include "history/history.h"
#include "studio/project.h"

namespace hx::studio {

/// What the user sees of the recipe branch.
struct ExplorerState {
    std::vector<std::string> expanded;  ///< keys of nodes
    int scrolled = 0;
    std::string node;
    std::int32_t row = -1;  ///< in the grid
};

/// Tells the editor of what was changed around it, by what every studio can: activation for a recipe's members, its own
/// command for the recipes themselves. What is open, selected and scrolled to stays, also when the user chooses that
/// command.
class EditorRefresh : private QObject {
  public:
    /// All are lent.
    EditorRefresh(StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree);

    /// The project that is open, lent; null: none.
    void setProject(const Project* project) noexcept { project_ = project; }
    /// Whether a macro runs: what it refreshes stands where the editor puts it, as without a studio.
    void setMacroRuns(bool runs) noexcept { macroRuns_ = runs; }
    /// Stores what has been typed. Throws automation::Error when it is refused.
    void finishEdit();
    /// Whether something has been typed that is not stored yet.
    [[nodiscard]] bool hasOpenEdit() const;
    /// What the user sees now, and what he saw in the editor before it was opened afresh.
    [[nodiscard]] ExplorerState state() const;
    void restore(const ExplorerState& state);
    /// After this step was undone or done again: the editor then shows where it was. Does nothing while there is no
    /// editor.
    void show(const history::StepName& step);

  private:
    void remember();
    void putBack();
    void show(const ExplorerState& place);
    void showNode(const std::string& key);
    void activate(forms::Form& window);
    [[nodiscard]] forms::Form* editor() const;
    [[nodiscard]] bool isThere(const std::string& key) const;

    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    const Project* project_ = nullptr;
    bool macroRuns_ = false;
    std::optional<ExplorerState> place_;  // while the editor builds its branch anew
};

}  // namespace hx::studio
