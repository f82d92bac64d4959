// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QMdiArea>
#include <QTableView>
#include <memory>
#include <string>

#include "adapters/qt/explorer/explorer_tree.h"
#include "ado/recordset.h"
#include "gui/desktop.h"
#include "studio/main_window.h"
#include "studio/preferences.h"
#include "studio/studio_host.h"

namespace hx::gui {

/// The folder of the add-ins that were built with the tests.
QString builtModules();

/// The studio with the real add-in module, on a configuration and projects of its own.
class StudioTest : public testing::Test {
  protected:
    ~StudioTest() override;

    /// Starts the studio; add-ins come from `modules`.
    void start(const QString& modules = builtModules());
    /// Closes the window as the user does, and forgets the studio.
    void quit();
    /// A project with the recipes "Limonade" (1) of two variables, "Apfelschorle" (2) and "Meyer's Bräu" (3), which
    /// includes the other two.
    QString makeProject(const QString& name = QStringLiteral("Anlage"));
    void open(const QString& file);

    /// Starts the studio with a new project at the variables of "Limonade"; gives the project's file.
    QString startAtMembers();

    [[nodiscard]] studio::MainWindow& window() { return *window_; }
    [[nodiscard]] studio::StudioHost& host() { return *host_; }
    [[nodiscard]] qt::ExplorerTree& tree() {
        return static_cast<qt::ExplorerTree&>(find<QTreeView>(*window_, "projectExplorer"));
    }
    [[nodiscard]] QMdiArea& documents() { return find<QMdiArea>(*window_, "documentArea"); }
    [[nodiscard]] QMdiSubWindow* editorWindow();
    [[nodiscard]] QTableView& grid() { return find<QTableView>(*window_, "tdbRM.Splits(1)"); }
    /// The published node with this path of captions below the project, such as "Rezepte/Limonade".
    [[nodiscard]] QModelIndex node(const QString& path);
    void click(const QString& path, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(const QString& path);
    /// The texts of a column of the grid, by its caption.
    [[nodiscard]] std::vector<std::string> texts(const QString& caption);
    [[nodiscard]] int column(const QString& caption);
    /// Types into a cell, which is still being edited then.
    QLineEdit& typeInCell(int row, const QString& caption, const QString& text);
    /// Types into a cell and ends with Enter.
    void edit(int row, const QString& caption, const QString& text);
    /// The VarRecipe values of a recipe in the project file.
    [[nodiscard]] std::vector<std::string> stored(const QString& file, int recipe);
    /// Adds a variable to a recipe in the project file, as another program does.
    void store(const QString& file, int recipe, const std::string& variable);
    [[nodiscard]] std::string titleOfEditor();

    QTemporaryDir folder;

  private:
    std::unique_ptr<studio::StudioHost> host_;
    std::unique_ptr<studio::Preferences> preferences_;
    std::unique_ptr<studio::MainWindow> window_;
};

}  // namespace hx::gui
