// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QHash>
#include <QMainWindow>
#include <functional>

#include "studio/macro_dock.h"
#include "studio/macro_library.h"
#include "studio/macro_menu.h"
#include "studio/macro_runner.h"

namespace hx::studio {

/// The studio's macros: their menu, their output and the one that runs.
class MacroCommands : public QObject, private MacroMenuCommands {
  public:
    /// All are lent. The user's macros lie in the folder "macros" of the host's configuration.
    MacroCommands(QMainWindow& window, ProjectWindow& projects, StudioHost& host, qt::QtExplorer& explorer);

    /// Shows and hides the output.
    [[nodiscard]] QAction& toggleOutput() { return *dock_.toggleViewAction(); }
    /// Puts the menu before the last one and the output below.
    void addTo(QMainWindow& window);
    void retranslate();

    /// Called with the name of the macro that begins, and with none when it has ended.
    using RunningChanged = std::function<void(const QString& name)>;
    void setRunningChanged(RunningChanged changed) { runningChanged_ = std::move(changed); }
    /// Who leads to what a macro has found.
    void setGoTo(FoundView::GoTo goTo) { dock_.setGoTo(std::move(goTo)); }
    [[nodiscard]] bool isRunning() const noexcept { return runner_.isRunning(); }
    /// Stops what runs, and closes the window once it has ended.
    void stopAndClose();

  private:
    void runMacro(const QString& path) override;
    void chooseMacro() override;
    void openMacroFolder() override;
    void copySampleMacros() override;
    void runChosen();
    void showRunning();
    void report(const QString& text);
    [[nodiscard]] bool makeFolder();

    QMainWindow& window_;
    ProjectWindow& projects_;
    StudioHost& host_;
    const qt::Wording& wording_;
    MacroLibrary library_;
    QAction runAgain_, stop_;
    MacroDock dock_;
    MacroMenu menu_;
    MacroRunner runner_;
    RunningChanged runningChanged_;
    QString last_;
    QHash<QString, QString> arguments_;  ///< of each macro that was run, by its path
    bool closing_ = false;
};

}  // namespace hx::studio
