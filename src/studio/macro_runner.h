// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QKeyCombination>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <functional>

#include "adapters/lua/engine.h"
#include "studio/macro_dock.h"
#include "studio/window_studio.h"

namespace hx::studio {

/// Runs a macro on the studio's window and keeps the window alive meanwhile: it is drawn, shows what the macro prints
/// and takes the request to stop; all else of the user's input is held back.
class MacroRunner : public QObject {
  public:
    /// All are lent. `stopKey` stops a macro from any window.
    MacroRunner(ProjectWindow& window, StudioHost& host, qt::QtExplorer& explorer, MacroDock& dock,
                QKeyCombination stopKey);

    /// Runs a macro to its end, which the dock shows. Does nothing while one is running.
    void run(const QString& path, const QStringList& arguments);
    /// The macro ends at its next step; a dialog that it waits for is closed as by a user who cancels.
    void stop();
    [[nodiscard]] bool isRunning() const noexcept { return running_; }
    /// Called when a macro begins and when it has ended.
    void setChanged(std::function<void()> changed) { changed_ = std::move(changed); }

  private:
    void runText(const QByteArray& text, const QString& name, const QStringList& arguments);
    void runEngine(WindowStudio& studio, const QByteArray& text, const QString& name, const QStringList& arguments);
    void showEnd(const lua::MacroError& error);
    [[nodiscard]] bool stopRequested();
    void handleEvents();
    void dismissDialog();
    void setRunning(bool running);
    [[nodiscard]] double seconds() const;

    ProjectWindow& window_;
    StudioHost& host_;
    qt::QtExplorer& explorer_;
    MacroDock& dock_;
    QKeyCombination stopKey_;
    std::function<void()> changed_;
    QElapsedTimer clock_;
    QTimer dismissals_;
    qint64 handled_ = 0;
    bool running_ = false, stop_ = false, handling_ = false;
};

}  // namespace hx::studio
