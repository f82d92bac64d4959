// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include "adapters/qt/text.h"
#include "adapters/sqlite/project_file.h"
#include "automation/convert.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// The user goes to a window of another program, and comes back; in the order in which the toolkit tells it.
void leaveStudio() {
    QApplication::setActiveWindow(nullptr);
    emit qApp->applicationStateChanged(Qt::ApplicationInactive);
}
void comeBackTo(QWidget& window) {
    emit qApp->applicationStateChanged(Qt::ApplicationActive);
    QApplication::setActiveWindow(&window);
}

TEST_F(StudioTest, OpensAProjectWhoseNameLooksLikeAFile) {
    start();
    makeProject("Anlage");
    open(makeProject("Anlage.hxs"));
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Anlage.hxs");
    click("Rezepte");
    click("Rezepte/Limonade");
    edit(0, "Variable", "Mischer.Honig");
    click("Rezepte");
    EXPECT_EQ(stored(folder.filePath("Anlage.hxs.hxs"), 1), (Texts{"Mischer.Honig", "Mischer.Wasser"}));
    EXPECT_EQ(stored(folder.filePath("Anlage.hxs"), 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(StudioTest, SaysInItsStatusLineThatTheListOfProjectsCannotBeSaved) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("config/studio.ini"));
    start();
    const QString file = makeProject();
    open(file);
    const QString text =
        "Fenster und Projektliste konnten nicht gespeichert werden: " + folder.filePath("config/studio.ini");
    EXPECT_EQ(window().statusBar()->currentMessage(), text);
    window().statusBar()->clearMessage();
    const BoxAnswers answers({"OK"});
    EXPECT_FALSE(window().openProject(folder.filePath("none.hxs")));
    EXPECT_EQ(window().statusBar()->currentMessage(), text);
}

TEST_F(StudioTest, StartsAndSaysSoWhenItsSettingsCannotBeRead) {
    ASSERT_TRUE(QDir(folder.path()).mkpath("config/registry.ini"));
    const BoxAnswers answers({"OK"});
    studio::StudioHost host(folder.filePath("config"), {builtModules()});
    studio::Preferences preferences(folder.filePath("config"));
    studio::MainWindow window(host, preferences);
    window.show();
    ASSERT_TRUE(waitUntil([&] { return !answers.shown().empty(); }));
    const std::string& told = answers.shown()[0].text;
    EXPECT_EQ(told.substr(0, 47), "Die Einstellungen konnten nicht gelesen werden.");
    EXPECT_NE(told.find("registry.ini' kann nicht gelesen werden: sie ist keine Datei."), std::string::npos) << told;
    EXPECT_TRUE(window.isVisible());
}

TEST_F(StudioTest, RefusesAPathThatNoConnectionStringCanName) {
    start();
    for (const char* name : {"Anlage;2", "Anlage\"2"}) {
        const QString file = folder.filePath(QString(name) + ".hxs");
        sqlite::createProject(qt::fromQt(file));
        const BoxAnswers answers({"OK"});
        EXPECT_FALSE(window().openProject(file));
        ASSERT_EQ(answers.shown().size(), 1U);
        EXPECT_NE(answers.shown()[0].text.find(qt::fromQt(file)), std::string::npos) << answers.shown()[0].text;
        EXPECT_EQ(window().windowTitle(), "HelvixStudio");
    }
}

TEST_F(StudioTest, TheMenuOfANodeOfSubRecipesShowsTheEditorAlone) {
    start();
    open(makeProject());
    click("Rezepte");
    QStringList shown;
    const NextMenu next([&](QMenu& menu) {
        for (const QAction* action : menu.actions()) shown.append(action->text().section('\t', 0, 0));
        menu.close();
    });
    click("Rezepte/Limonade/Unterrezepte", Qt::RightButton);
    EXPECT_EQ(shown, (QStringList{"Editor anzeigen"}));
}

// The module runs as the built library: its window procedure sees the window become active.
TEST_F(StudioTest, TheEditorReadsItsMembersAfreshWhenItIsActivated) {
    const QString file = startAtMembers();
    QMdiSubWindow* editor = editorWindow();
    ASSERT_NE(editor, nullptr);
    QWidget other;
    QMdiSubWindow* beside = documents().addSubWindow(&other);
    beside->show();
    documents().setActiveSubWindow(beside);
    handleEvents();
    store(file, 1, "Mischer.Aroma");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    documents().setActiveSubWindow(editor);
    handleEvents();
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser", "Mischer.Aroma"}));
    documents().removeSubWindow(&other);
    delete beside;
}

TEST_F(StudioTest, TheEditorReadsItsMembersAfreshWhenTheKeyboardComesFromAnotherPartOfTheStudio) {
    const QString file = startAtMembers();
    std::vector<std::string> expected = {"Mischer.Zucker", "Mischer.Wasser"};
    auto& output = find<QWidget>(window(), "macroText");
    find<QWidget>(window(), "macroDock").show();
    for (QWidget* part : {static_cast<QWidget*>(&tree()), &output}) {
        part->setFocus();
        expected.push_back("Mischer.Aroma" + std::to_string(expected.size()));
        store(file, 1, expected.back());
        EXPECT_NE(texts("Variable"), expected);
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, QPoint(20, 5));
        EXPECT_EQ(texts("Variable"), expected) << part->objectName().toStdString();
    }
}

TEST_F(StudioTest, TheEditorReadsItsMembersAfreshWhenTheUserComesBackFromAnotherProgram) {
    const QString file = startAtMembers();
    std::vector<std::string> expected = {"Mischer.Zucker", "Mischer.Wasser"};
    for (QWidget* part : {static_cast<QWidget*>(&grid()), static_cast<QWidget*>(&tree())}) {
        part->setFocus();
        leaveStudio();
        handleEvents();
        expected.push_back("Mischer.Aroma" + std::to_string(expected.size()));
        store(file, 1, expected.back());
        EXPECT_NE(texts("Variable"), expected);
        comeBackTo(window());
        EXPECT_TRUE(waitUntil([&] { return texts("Variable") == expected; })) << part->objectName().toStdString();
        EXPECT_TRUE(part->hasFocus());
    }
}

TEST_F(StudioTest, BehindADialogNothingIsReadAfresh) {
    const QString file = startAtMembers();
    grid().setFocus();
    const auto before = texts("Variable");
    store(file, 1, "Mischer.Aroma");
    QDialog dialog(&window());
    dialog.setModal(true);
    dialog.show();
    leaveStudio();
    comeBackTo(dialog);
    handleEvents();
    EXPECT_EQ(texts("Variable"), before);
}

}  // namespace
}  // namespace hx::gui
