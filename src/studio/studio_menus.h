// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <functional>

#include "adapters/qt/wording.h"

namespace hx::studio {

/// What the menus of the main window do.
class StudioCommands {
  public:
    virtual ~StudioCommands() = default;
    virtual void newProject() = 0;
    virtual void chooseProject() = 0;
    virtual void openRecent(const QString& path) = 0;
    virtual void forgetRecent(const QString& path) = 0;
    virtual void clearRecent() = 0;
    virtual void openSample() = 0;
    virtual void closeProject() = 0;
    virtual void keepDailyCopies(bool keep) = 0;
    virtual void chooseLanguage(std::int32_t lcid) = 0;
    virtual void showHelp() = 0;
    virtual void showShortcuts() = 0;
    virtual void showAbout() = 0;
    [[nodiscard]] virtual QStringList recentProjects() const = 0;
    [[nodiscard]] virtual bool keepsDailyCopies() const = 0;
    virtual void reopenAtStart(bool reopen) = 0;
    [[nodiscard]] virtual bool reopensAtStart() const = 0;
    [[nodiscard]] virtual bool hasSample() const = 0;
};

/// The menus of the main window, in the studio's language.
class StudioMenus : public QObject {
  public:
    /// All are lent. `views` show and hide the docks, `edits` undo and redo; they bring their texts with them.
    StudioMenus(QMainWindow& window, StudioCommands& commands, const QList<QAction*>& views,
                const QList<QAction*>& edits, const qt::Wording& wording);
    void retranslate();
    /// For further menus to stand before it.
    [[nodiscard]] QAction* viewMenu() const { return view_.menuAction(); }
    /// What a window without a project offers.
    [[nodiscard]] QList<QAction*> beginnings();
    void setProjectOpen(bool open) { close_.setEnabled(open); }

  private:
    void build(QMainWindow& window, const QList<QAction*>& views, const QList<QAction*>& edits);
    void fillRecent();
    StudioCommands& commands_;
    const qt::Wording& wording_;
    QMenu file_, recent_, edit_, view_, language_, help_;
    QAction new_, open_, sample_, close_, copies_, reopen_, exit_, german_, english_, showHelp_, shortcuts_, about_;
    QActionGroup languages_;
};

}  // namespace hx::studio
