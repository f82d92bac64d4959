// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include "studio/explorer_filter.h"
#include "studio/find_dock.h"
#include "studio/history_commands.h"
#include "studio/navigator.h"
#include "studio/problems_dock.h"
#include "studio/variable_dock.h"
#include "studio/where_used_dock.h"

namespace hx::studio {

/// The menu "Search": what finds its way through the open project, and the docks that list what was found.
class FindCommands : public QObject {
  public:
    using Warn = std::function<void(const QString& text)>;

    /// All are lent. `warn` tells the user why nothing was changed.
    FindCommands(QMainWindow& window, ProjectWindow& projects, StudioHost& host, qt::QtExplorer& explorer,
                 qt::ExplorerTree& tree, HistoryCommands& history, Warn warn);
    ~FindCommands() override;

    /// Stands above the explorer.
    [[nodiscard]] QWidget& filter() noexcept { return filter_; }
    /// Show and hide the docks.
    [[nodiscard]] QList<QAction*> toggles();
    /// Puts the menu before the one of this action, the docks below and the number of problems into the status line.
    void addTo(QMainWindow& window, QAction* before);
    void retranslate();
    void open(const QString& file);
    void close();
    /// Leads to a place of the project.
    void goTo(const Place& place, bool into);
    [[nodiscard]] const Navigator& navigator() const noexcept { return navigator_; }
    [[nodiscard]] const KnownVariables& known() const noexcept { return known_; }
    /// What the explorer's filter holds, and whether it orders by name.
    [[nodiscard]] QString filterText() const { return filter_.text(); }
    [[nodiscard]] bool sortsByName() const { return sort_.isChecked(); }
    void arrange(const QString& filter, bool byName);

    /// The open project for further lists.
    [[nodiscard]] LiveProject& live() noexcept { return live_; }
    void showUsesOf(const QString& name) { uses_.showUsesOf(name); }
    /// Asked for the variable that the user sees elsewhere than in the editor; empty for none.
    std::function<QString()> variableElsewhere = [] { return QString(); };

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void build(QMainWindow& window);
    void connectActions();
    void showWhereUsed();
    void goToSubRecipe();
    void showVisited();
    void rename(const std::string& key, const std::string& name);
    void store(const std::vector<project::Replacement>& replacements, const QString& name);
    void attempt(const std::function<void()>& action);

    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    HistoryCommands& history_;
    ProjectWindow& projects_;
    const qt::Wording& wording_;
    Warn warn_;
    QMenu menu_;
    QAction startFilter_, sort_, find_, whereUsed_, back_, forward_, toSubRecipe_, rename_;
    ExplorerFilter filter_;
    Navigator navigator_;
    KnownVariables known_;
    LiveProject live_;
    ProblemsDock problems_;
    WhereUsedDock uses_;
    FindDock texts_;
    VariableDock variable_;
};

}  // namespace hx::studio
