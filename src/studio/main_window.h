// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTranslator>
#include <memory>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/explorer/explorer_tree.h"
#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/wording.h"
#include "studio/document_area.h"
#include "studio/editor_status.h"
#include "studio/find_commands.h"
#include "studio/help_commands.h"
#include "studio/history_commands.h"
#include "studio/macro_commands.h"
#include "studio/preferences.h"
#include "studio/project.h"
#include "studio/project_window.h"
#include "studio/recipe_commands.h"
#include "studio/start_page.h"
#include "studio/studio_host.h"
#include "studio/studio_menus.h"
#include "studio/variables_commands.h"

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
    /// Opens the project that was open when the studio was left, where the user was; unless he does not want that.
    void reopenLast();
    /// Writes the language to the registry. The window follows at once, the add-in by being started again. When
    /// something is being typed the user is asked first.
    void chooseLanguage(std::int32_t lcid) override;

    [[nodiscard]] const Project* project() const noexcept override { return project_.get(); }

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void newProject() override;
    void chooseProject() override;
    void openRecent(const QString& path) override { openProject(path); }
    void forgetRecent(const QString& path) override { tellUnlessListed(preferences_.removeRecent(path)); }
    void clearRecent() override;
    void openSample() override;
    [[nodiscard]] bool hasSample() const override;
    void reopenAtStart(bool reopen) override;
    [[nodiscard]] bool reopensAtStart() const override { return preferences_.reopens(); }
    void keepDailyCopies(bool keep) override;
    [[nodiscard]] bool keepsDailyCopies() const override { return history_.keepsDailyCopies(); }
    void showHelp() override { help_.show(documentsHandle_); }
    void showShortcuts() override { help_.showShortcuts(); }
    void showAbout() override { help_.showAbout(); }
    [[nodiscard]] QStringList recentProjects() const override { return preferences_.recent(); }

    void open(const QString& path) override;
    void create(const QString& path) override;
    [[nodiscard]] QString projectFolder() const override;

    void setUp();
    void restoreWindow();
    void saveWindow();
    void openBranch();
    void readLanguage();
    [[nodiscard]] bool storesWhatIsTyped();
    void restartAddIn();
    void useLanguage(std::int32_t lcid);
    void startAddIn();
    void showProject();
    void warn(const QString& text);
    void warn(const QString& text, const QString& detail) { warn(text.arg(detail)); }
    [[nodiscard]] bool reported(void (MainWindow::*action)(const QString&), const QString& path);
    bool attempt(const std::function<void()>& action);
    void tellUnlessListed(bool listed);
    [[nodiscard]] QString told(const automation::Error& error) const;
    [[noreturn]] void fail(const QString& text, const QString& detail) const;

    StudioHost& host_;
    Preferences& preferences_;
    const qt::Wording& wording_;
    QStackedWidget central_;
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
    RecipeCommands recipes_;
    EditorStatus status_;
    VariablesCommands variables_;
    StudioMenus menus_;
    HelpCommands help_;
    StartPage start_;
    std::unique_ptr<Project> project_;
};

}  // namespace hx::studio
