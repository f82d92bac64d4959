// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QTimer>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "forms/grid.h"
#include "studio/place.h"
#include "studio/project_window.h"

namespace hx::studio {

/// Goes to places of the open project in explorer and editor, and back to those that were visited.
class Navigator : public QObject {
  public:
    /// All are lent.
    Navigator(ProjectWindow& window, StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree);

    /// Shows a place: its node, its row in the grid. `into`: the row gets the keyboard, a column of a recipe is shown
    /// in the recipe's dialog. False when it is not there any more.
    bool show(const Place& place, bool into);

    [[nodiscard]] bool canGoBack() const noexcept { return at_ > 0; }
    [[nodiscard]] bool canGoForward() const noexcept { return at_ + 1 < visited_.size(); }
    void back() { go(-1); }
    void forward() { go(1); }
    /// Another project: nothing has been visited.
    void forget();
    /// Called when going back or forward may have become possible, or not.
    std::function<void()> visitedChanged = [] {};

    /// Where the user is.
    struct Here {
        std::int64_t recipe = 0;     ///< of the explorer's node
        std::int64_t subRecipe = 0;  ///< that the grid's current row includes
        std::string variable;        ///< that this row names
        bool inGrid = false;         ///< it had the keyboard later than the explorer
    };
    [[nodiscard]] Here here() const;
    /// The editor's grid; null while there is none.
    [[nodiscard]] std::shared_ptr<forms::Grid> grid() const;
    /// Whether it has the keyboard, and no cell of it is open.
    [[nodiscard]] bool gridHasKeyboard() const;
    /// Raised when that may be another place.
    forms::Event<> moved;

  private:
    void go(int step);
    void noteVisit();
    void followGrid();
    [[nodiscard]] bool chooseNode(const std::string& key);
    bool showMember(std::int64_t member, bool into);
    void showColumn(std::string_view column);

    ProjectWindow& window_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    QTimer visitSoon_;
    std::vector<std::string> visited_;  // keys of nodes
    std::size_t at_ = 0;
    bool inGrid_ = false;
    std::weak_ptr<forms::Grid> followed_;
    std::array<forms::Subscription, 2> moves_;  // of that grid
    QTimer movedSoon_;
};

}  // namespace hx::studio
