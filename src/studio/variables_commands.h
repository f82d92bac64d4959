// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>

#include "studio/document_area.h"
#include "studio/find_commands.h"
#include "studio/variable_lists.h"
#include "studio/variables_pane.h"

namespace hx::studio {

/// The project's variable list: its node in the explorer, its window and its menu, and what is done to it.
class VariablesCommands : public QObject {
  public:
    using Warn = std::function<void(const QString& text)>;

    /// All are lent. `warn` tells the user why nothing was changed.
    VariablesCommands(QMainWindow& window, DocumentArea& documents, ProjectWindow& projects, StudioHost& host,
                      qt::QtExplorer& explorer, qt::ExplorerTree& tree, HistoryCommands& history, FindCommands& find,
                      Warn warn);

    /// Puts the menu before the one of this action.
    void addTo(QMainWindow& window, QAction* before);
    void retranslate();
    void open() { enable(true); }
    /// While the project is still open: what is being typed is stored.
    void finishEdit();
    void close();

  private:
    void build();
    void connectActions();
    [[nodiscard]] VariablesKeys keys();
    [[nodiscard]] QString title() const { return wording_.translate("studio", "Variables"); }
    void write(const QString& name, const std::function<void(ado::Session& session)>& work);
    void show(bool into);
    void leave(const QModelIndex& node);
    [[nodiscard]] QString current();
    void enable(bool open);

    void change(const VariablesModel::Edit& edit);
    void rename(const VariablesModel::Edit& edit);
    void store(const VariablesModel::Edit& edit, const QString& name, bool everywhere);
    void add();
    void remove();
    [[nodiscard]] bool isMeant(const std::vector<int>& rows);
    void copy();
    void paste();
    void pasteText(const std::string& text);
    void importList();
    void exportList();
    void importFrom(const QString& list, const lists::CsvChoice& choice, const Progress& reach);
    void tell(const QString& text);
    void attempt(const std::function<void()>& action);

    QMainWindow& window_;
    DocumentArea& documents_;
    ProjectWindow& projects_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    FindCommands& find_;
    HistoryCommands& history_;
    const qt::Wording& wording_;
    Warn warn_;
    QMenu menu_;
    QAction show_, add_, remove_, copy_, paste_, whereUsed_, import_, export_;
    VariablesPane pane_;
    QPointer<QMdiSubWindow> document_;
};

}  // namespace hx::studio
