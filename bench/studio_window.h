// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QPointer>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <string>

#include "bench/application.h"
#include "bench/projects.h"
#include "studio/main_window.h"
#include "studio/preferences.h"
#include "studio/studio_host.h"

namespace hx::bench {

/// The studio with the add-in on a project, the big recipe shown. Everything is done by keys and clicks, and counts
/// until nothing is left to do and the grid is painted. It deletes without asking.
class StudioWindow {
  public:
    explicit StudioWindow(const Project& project);
    ~StudioWindow();

    /// The table of the member grid.
    [[nodiscard]] QTableView& grid() { return *grid_; }
    [[nodiscard]] int rows() const { return grid_->model()->rowCount(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Clicks a column's header, which sorts by it.
    void clickHeader(const QString& column);
    /// Clicks it until the grid is not sorted.
    void sortByNothing(const QString& column);
    /// Clicks the recipe below the one that is shown.
    void showNextRecipe();
    /// As the entry of the editor's tool bar does.
    void refreshView();
    /// Handles all that waits; the grid is painted then.
    void settle();

  private:
    void findGrid();
    void click(const QString& caption);
    [[nodiscard]] int column(const QString& caption) const;

    Application application_;
    QTemporaryDir folder_;
    studio::StudioHost host_;
    studio::Preferences preferences_{folder_.path()};
    // What a change costs, not that a day begins.
    const bool keepsNoCopies_ = preferences_.setKeepsDailyCopies(false);
    studio::MainWindow window_{host_, preferences_};
    QTimer watch_;
    QPointer<QTableView> grid_;  // the editor makes it anew when it refreshes
};

}  // namespace hx::bench
