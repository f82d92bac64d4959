// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QTranslator>
#include <memory>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/explorer/explorer_tree.h"
#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/wording.h"
#include "studio/document_area.h"
#include "studio/find_commands.h"
#include "studio/history_commands.h"
#include "studio/macro_commands.h"
#include "studio/preferences.h"
#include "studio/project.h"
#include "studio/project_window.h"
#include "studio/studio_host.h"
#include "studio/studio_menus.h"

namespace hx::studio {

/// The studio's window: project explorer, area of documents, menus and status line. One project is open at a time.
class MainWindow : public QMainWindow, private StudioCommands, private ProjectWindow {
  public:
    /// Both are lent. The language is the registry's ("LCID").
    MainWindow(StudioHost& host, Preferences& preferences);
    ~MainWindow() override;

    /// Closes the open project and opens this one. False after a message when there is no such file.
    bool openProject(const QString& path);
    void closeProject() override;
    /// Makes an empty project and opens it. False after a message when the file exists or cannot be written.
    bool createProject(const QString& path);
    /// Writes the language to the registry. The studio follows at once, the add-in with the next project.
    void chooseLanguage(std::int32_t lcid) override;

    [[nodiscard]] const Project* project() const noexcept override { return project_.get(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void newProject() override;
    void chooseProject() override;
    void openRecent(const QString& path) override { openProject(path); }
    void clearRecent() override;
    void keepDailyCopies(bool keep) override;
    [[nodiscard]] bool keepsDailyCopies() const override { return history_.keepsDailyCopies(); }
    void showHelp() override;
    void showAbout() override;
    [[nodiscard]] QStringList recentProjects() const override { return preferences_.recent(); }

    void open(const QString& path) override;
    void create(const QString& path) override;
    [[nodiscard]] QString projectFolder() const override;

    void setUp();
    void restoreWindow();
    void readLanguage();
    void useLanguage(std::int32_t lcid);
    void installHelp();
    void startAddIn();
    void tellOfLastSession();
    void showProject();
    void warn(const QString& text);
    void warn(const QString& text, const QString& detail) { warn(text.arg(detail)); }
    [[nodiscard]] bool reported(void (MainWindow::*action)(const QString&), const QString& path);
    void tellUnlessListed(bool listed);
    [[nodiscard]] QString told(const automation::Error& error) const;
    [[noreturn]] void fail(const QString& text, const QString& detail) const;

    StudioHost& host_;
    Preferences& preferences_;
    const qt::Wording& wording_;
    DocumentArea documents_;
    QDockWidget explorerDock_;
    QWidget explorerPanel_;
    qt::ExplorerTree tree_;
    qt::PlainLabel fileLabel_;
    QTranslator translator_;
    forms::WindowHandle documentsHandle_;
    qt::QtExplorer explorer_;
    MacroCommands macros_;
    HistoryCommands history_;
    FindCommands find_;
    StudioMenus menus_;
    std::unique_ptr<Project> project_;
};

}  // namespace hx::studio
