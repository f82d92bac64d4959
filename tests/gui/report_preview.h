// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "gui/studio_fixture.h"
#include "project/generator.h"
#include "report/preview/page_view.h"

namespace hx::gui {

/// The editor with the project of StudioTest, and the preview that Options, Report opens.
class ReportPreview : public StudioTest {
  protected:
    QString project;

    void openEditor(std::int32_t language = qt::Wording::german) {
        start();
        if (language != qt::Wording::german) window().chooseLanguage(language);
        project = makeProject();
        open(project);
        click(language == qt::Wording::german ? "Rezepte" : "Recipes");
        handleEvents();
    }
    /// The editor with a project that has a report of many pages.
    void openLarge() {
        start();
        project = folder.filePath("gross.hxs");
        sqlite::createProject(qt::fromQt(project));
        sqlite::Provider provider;
        const auto session = provider.connect("Data Source=" + qt::fromQt(project) + ";Mode=Read|Write;");
        project::generate(*session, {.recipes = 1500, .members = 15000}, [](std::int64_t) {});
        open(project);
        click("Rezepte");
        handleEvents();
    }
    /// Chooses Options, Report in the editor's menu and acts on the preview, which is then closed.
    void inPreview(const std::function<void(QWidget&)>& action) {
        bool came = false;
        const NextModal<QDialog> next([&](QDialog& preview) {
            came = preview.objectName() == "reportPreview";
            EXPECT_TRUE(came) << qt::fromQt(preview.objectName());
            try {
                action(preview);
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
            if (preview.isVisible()) preview.reject();
        });
        chooseReport();
        handleEvents();
        EXPECT_TRUE(came);
        ASSERT_NE(editorWindow(), nullptr);
        EXPECT_TRUE(editorWindow()->isVisible());
    }
    void chooseReport() {
        auto& bar = find<QMenuBar>(*editorWindow(), "abr");
        for (QAction* top : bar.actions()) {
            if (!top->text().contains("ption")) continue;
            QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(top).center());
            handleEvents();
            for (QAction* entry : top->menu()->actions()) {
                if (entry->text().remove('&') != "Report") continue;
                return QTest::mouseClick(top->menu(), Qt::LeftButton, {}, top->menu()->actionGeometry(entry).center());
            }
        }
        ADD_FAILURE() << "there is no entry Report";
    }
    /// Runs a tool of the preview; `action` acts on the choice of a file that it opens.
    static void saveWith(QWidget& preview, const char* tool, const std::function<void(QFileDialog&)>& action) {
        const NextModal<QFileDialog> next(action);
        find<QAction>(preview, tool).trigger();
        handleEvents();
    }
    static std::function<void(QFileDialog&)> choosing(const QString& path) {
        return [path](QFileDialog& dialog) {
            find<QLineEdit>(dialog, "fileNameEdit").setText(path);
            QTest::keyClick(&find<QLineEdit>(dialog, "fileNameEdit"), Qt::Key_Return);
        };
    }
    template <class W>
    static W& find(const QObject& parent, const char* name) {
        auto* found = parent.findChild<W*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(std::string("nothing is called ") + name);
        return *found;
    }
    static report::PageView& pages(const QWidget& preview) {
        return static_cast<report::PageView&>(find<QAbstractScrollArea>(preview, "reportPages"));
    }
    [[nodiscard]] std::vector<std::string> leftovers() const {
        std::vector<std::string> names;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files)) {
            if (!name.endsWith(".hxs")) names.push_back(qt::fromQt(name));
        }
        return names;
    }
};

}  // namespace hx::gui
