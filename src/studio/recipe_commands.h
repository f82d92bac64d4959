// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>

#include "project/recipe_writer.h"
#include "studio/history_commands.h"
#include "studio/known_variables.h"
#include "studio/navigator.h"

namespace hx::studio {

/// The menu "Recipe": what is done with the recipes that are selected in the explorer, and with rows of the grid.
class RecipeCommands : public QObject {
  public:
    using Warn = std::function<void(const QString& text)>;

    /// All are lent. `warn` tells the user why nothing was changed.
    RecipeCommands(QMainWindow& window, StudioHost& host, qt::QtExplorer& explorer, qt::ExplorerTree& tree,
                   HistoryCommands& history, const Navigator& navigator, const KnownVariables& known, Warn warn);

    /// Puts the menu before the one of this action.
    void addTo(QMainWindow& window, QAction* before);
    void retranslate();
    /// Null while no project is open; lent.
    void setProject(const Project* project);

  private:
    void build();
    void refresh();
    void duplicate(project::SubRecipes subRecipes);
    void createSeries();
    void remove();
    void report();
    void copyRows();
    void paste();
    [[nodiscard]] std::vector<std::int64_t> selected() const;
    [[nodiscard]] std::vector<std::string> variablesOf(std::int64_t recipe) const;
    [[nodiscard]] bool inMembersOfRecipe() const;
    using Change = std::function<std::vector<std::int64_t>(project::RecipeWriter& writer)>;
    void change(const QString& name, const Change& change);
    void attempt(const std::function<void()>& action);

    QMainWindow& window_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    HistoryCommands& history_;
    const Navigator& navigator_;
    const KnownVariables& known_;
    const qt::Wording& wording_;
    Warn warn_;
    QMenu menu_;
    QAction duplicate_, duplicateAll_, series_, remove_, report_, copy_, paste_;
    const Project* project_ = nullptr;
};

}  // namespace hx::studio
