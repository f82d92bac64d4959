// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>

#include "history/daily_copies.h"
#include "studio/editor_refresh.h"
#include "studio/history_dock.h"
#include "studio/step_notice.h"

namespace hx::studio {

/// Undo and redo of all that is changed in the open project, and the list of it.
class HistoryCommands : public QObject {
  public:
    using Warn = std::function<void(const QString& text)>;

    /// All are lent. `warn` tells the user why a step is not undone.
    HistoryCommands(QMainWindow& window, StudioHost& host, bool keepsDailyCopies, qt::QtExplorer& explorer,
                    qt::ExplorerTree& tree, Warn warn);

    [[nodiscard]] QList<QAction*> actions() { return {&undo_, &redo_}; }
    [[nodiscard]] QAction& toggleDock() { return *dock_.toggleViewAction(); }
    void addTo(QMainWindow& window);
    void retranslate();

    /// Before the project's add-in starts. Both are lent until close().
    void open(const Project& project);
    /// After the project's add-in has ended.
    void close();
    /// A studio that did not end as it should has left its steps behind: shows them and tells of them.
    void tellOfLastSession();
    void keepDailyCopies(bool keep) noexcept { keepsDailyCopies_ = keep; }
    [[nodiscard]] bool keepsDailyCopies() const noexcept { return keepsDailyCopies_; }
    /// The macro that runs; empty for none. All that it changes is one step, and nothing is undone meanwhile.
    void setMacro(const QString& name);
    /// Called when the project has been changed, and before something is written to it.
    void setWatch(std::function<void()> changed, std::function<void()> writing);
    /// What is done to a project, and afterwards to what is shown of it: the step then says where that is.
    using Work = std::function<void(ado::Session& session, history::StepName& shown)>;
    /// Stores what is being typed, changes the project and shows the editor what was changed. All of it is one step of
    /// this name; one without a name gets the name of what it did. What the work throws is passed on.
    void change(history::StepName step, const Project& project, const Work& work);
    /// Null while no project is open.
    [[nodiscard]] history::History* history() noexcept { return history_.get(); }
    /// Who tells the editor of what was changed around it.
    [[nodiscard]] EditorRefresh& editor() noexcept { return editor_; }

  private:
    /// `position` is asked for when what is being typed has been stored.
    void goTo(const std::function<std::size_t()>& position);
    void carryOut(const std::function<std::size_t()>& position);
    void keepCopy();
    void beginMacro();
    void endMacro();
    void refresh();
    void tell(const history::Surprise& surprise);
    [[nodiscard]] QString told(const history::StepName* step, const QString& command) const;

    QMainWindow& window_;
    StudioHost& host_;
    const qt::Wording& wording_;
    Warn warn_;
    QAction undo_, redo_;
    HistoryDock dock_;
    EditorRefresh editor_;
    std::shared_ptr<history::History> history_;
    bool keepsDailyCopies_;
    std::optional<history::DailyCopies> copies_;
    StepNotice notice_;
    QString macro_;
    std::function<void()> changed_ = [] {}, writing_ = [] {};
};

}  // namespace hx::studio
