// SPDX-License-Identifier: MIT
#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest-spi.h>

#include "adapters/qt/text.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

TEST_F(StudioTest, ShowsTheProjectAndItsRecipeBranch) {
    start();
    open(makeProject());
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Anlage");
    EXPECT_EQ(tree().model()->index(0, 0).data().toString(), "Anlage");
    EXPECT_TRUE(node("Rezepte").isValid());
    EXPECT_FALSE(node("Rezepte").data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(editorWindow(), nullptr);
}

TEST_F(StudioTest, TheFirstClickOpensTheEditorAndFillsTheBranch) {
    start();
    open(makeProject());
    click("Rezepte");
    ASSERT_NE(editorWindow(), nullptr);
    EXPECT_TRUE(editorWindow()->isVisible());
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor");
    EXPECT_EQ(tree().model()->rowCount(node("Rezepte")), 3);
    EXPECT_TRUE(node("Rezepte/Meyer's Bräu/Unterrezepte").isValid());
    EXPECT_EQ(grid().model()->rowCount(), 0);
}

TEST_F(StudioTest, ARecipeShowsItsVariablesAndItsSubRecipesByName) {
    start();
    open(makeProject());
    click("Rezepte");
    click("Rezepte/Limonade");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    EXPECT_EQ(texts("Unterrezept"), (Texts{"Limonade", "Apfelschorle"}));
    EXPECT_EQ(texts("Dateiname"), (Texts{"Datei.Limonade", ""}));
}

TEST_F(StudioTest, AnEditedCellIsStoredWhenItsRowIsLeft) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    edit(0, "Variable", "Mischer.Süßstoff");
    EXPECT_EQ(texts("Variable")[0], "Mischer.Süßstoff");
    EXPECT_EQ(stored(file, 1)[0], "Mischer.Zucker");
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Süßstoff", "Mischer.Wasser"}));
}

TEST_F(StudioTest, AnEditIsKeptWhenAnotherNodeIsClicked) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    edit(1, "Variable", "Mischer.Quellwasser");
    click("Rezepte/Apfelschorle");
    EXPECT_EQ(stored(file, 1)[1], "Mischer.Quellwasser");
    EXPECT_EQ(texts("Variable"), Texts{"Mischer.Apfelsaft"});
}

TEST_F(StudioTest, AnEditIsKeptWhenTheProjectCloses) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    edit(1, "Variable", "Mischer.Quellwasser");
    window().closeProject();
    EXPECT_EQ(stored(file, 1)[1], "Mischer.Quellwasser");
}

TEST_F(StudioTest, WhatIsBeingTypedIsKeptWhenTheStudioCloses) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Limonade");
    typeInCell(0, "Variable", "Neu");
    quit();
    EXPECT_EQ(stored(file, 1)[0], "Neu");
}

TEST_F(StudioTest, AFileThatIsNoProjectIsReportedAndTheStudioStaysUsable) {
    start();
    const QString broken = folder.filePath("Kaputt.hxs");
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("This is no project.");
    file.close();
    open(broken);
    {
        const BoxAnswers answers({"OK"});
        click("Rezepte");
        ASSERT_EQ(answers.shown().size(), 1u);
        EXPECT_EQ(answers.shown()[0].title, "ConnectToDataBase");
        EXPECT_EQ(answers.shown()[0].text.substr(0, 13), "-2147467259: ");
    }
    EXPECT_EQ(editorWindow(), nullptr);
    open(makeProject());
    click("Rezepte");
    EXPECT_EQ(tree().model()->rowCount(node("Rezepte")), 3);
    QFile again(broken);
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), "This is no project.");
}

TEST_F(StudioTest, AMissingFileIsSaidAndNotCreated) {
    start();
    const QString missing = folder.filePath("Fehlt.hxs");
    const BoxAnswers answers({"OK"});
    EXPECT_FALSE(window().openProject(missing));
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text, "Die Projektdatei wurde nicht gefunden:\n" + qt::fromQt(missing));
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_F(StudioTest, AMissingModuleIsSaidAndTheStudioStaysUsable) {
    start(folder.path());
    const BoxAnswers answers({"OK"});
    ASSERT_TRUE(window().openProject(makeProject()));
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_NE(answers.shown()[0].text.find("HXRecipeEditor" HX_MODULE_SUFFIX " gibt es nicht in " +
                                           qt::fromQt(folder.path())),
              std::string::npos)
        << answers.shown()[0].text;
    EXPECT_EQ(tree().model()->rowCount(tree().model()->index(0, 0)), 1);  // the variable list, which needs no editor
    click("Variablen");
    auto& variables = find<QTableView>(window(), "variableRows");
    EXPECT_TRUE(waitUntil([&] { return find<QLabel>(window(), "variableState").text() == "0 Variablen"; }));
    EXPECT_TRUE(variables.isVisible());
    window().closeProject();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio");
}

TEST_F(StudioTest, ClosingAndOpeningKeepsDataAndLayout) {
    start();
    const QString file = makeProject();
    open(file);
    click("Rezepte");
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    QHeaderView& header = *grid().horizontalHeader();
    const int subRecipe = column("Unterrezept");
    header.moveSection(header.visualIndex(subRecipe), 0);
    header.resizeSection(subRecipe, 260);
    edit(1, "Dateiname", "Datei.Schorle");
    window().closeProject();
    handleEvents();
    EXPECT_EQ(tree().model()->rowCount(), 0);
    EXPECT_EQ(editorWindow(), nullptr);

    open(file);
    click("Rezepte");
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    EXPECT_EQ(grid().horizontalHeader()->sectionSize(column("Unterrezept")), 260);
    EXPECT_EQ(grid().horizontalHeader()->visualIndex(column("Unterrezept")), 0);
    EXPECT_EQ(texts("Dateiname"), (Texts{"Datei.Limonade", "Datei.Schorle"}));
}

TEST_F(StudioTest, TheStudioRemembersItsWindowAndItsProjects) {
    start();
    const QString file = makeProject();
    open(file);
    window().resize(1000, 700);
    quit();
    start();
    EXPECT_EQ(window().size(), QSize(1000, 700));
    auto& recent = find<QMenu>(window(), "menuRecent");
    emit recent.aboutToShow();
    ASSERT_EQ(recent.actions().size(), 3);
    recent.actions()[0]->trigger();
    handleEvents();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Anlage");
}

TEST_F(StudioTest, TheCloseBoxHidesTheEditorAndADoubleClickShowsItAgain) {
    start();
    open(makeProject());
    click("Rezepte");
    editorWindow()->close();
    handleEvents();
    ASSERT_NE(editorWindow(), nullptr);
    EXPECT_FALSE(editorWindow()->isVisible());
    EXPECT_TRUE(QFile::exists(folder.filePath("HXEditors.ini")));
    doubleClick("Rezepte/Limonade");
    EXPECT_TRUE(editorWindow()->isVisible());
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(StudioTest, EverythingIsReachedByKeyboard) {
    start();
    open(makeProject());
    EXPECT_TRUE(tree().hasFocus());
    QTest::keyClick(&tree(), Qt::Key_Down);
    EXPECT_TRUE(find<QTableView>(window(), "variableRows").isVisible());
    EXPECT_TRUE(tree().hasFocus());
    QTest::keyClick(&tree(), Qt::Key_Down);
    ASSERT_NE(editorWindow(), nullptr);
    EXPECT_TRUE(tree().hasFocus());
    QTest::keyClick(&tree(), Qt::Key_Right);
    handleEvents();
    QTest::keyClick(&tree(), Qt::Key_Down);
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    QTest::keyClick(&tree(), Qt::Key_F6);
    EXPECT_TRUE(grid().hasFocus());
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(grid().currentIndex().row(), 1);
    QTest::keyClick(&grid(), Qt::Key_F6, Qt::AltModifier);
    EXPECT_TRUE(tree().hasFocus());
}

TEST_F(StudioTest, TheMenuOfANodeComesAtARightClickWithShowEditorAtItsEnd) {
    start();
    open(makeProject());
    QStringList shown;
    const NextMenu next([&](QMenu& menu) {
        for (const QAction* action : menu.actions()) shown.append(action->text().section('\t', 0, 0));
        menu.close();
    });
    click("Rezepte", Qt::RightButton);
    EXPECT_EQ(shown, (QStringList{"Rezept", "&Neu", "", "Editor anzeigen"}));
}

TEST_F(StudioTest, ShiftAndDownSelectRowsOneByOne) {
    start();
    open(makeProject());
    click("Rezepte");
    click("Rezepte/Limonade");
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectionModel()->selectedRows().size(), 1);
    QTest::keyClick(&grid(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectionModel()->selectedRows().size(), 2);
    QTest::keyClick(&grid(), Qt::Key_Up);
    EXPECT_EQ(grid().selectionModel()->selectedRows().size(), 0);
}

TEST_F(StudioTest, ANewProjectNeverReplacesAFile) {
    start();
    const QString file = folder.filePath("Neu.hxs");
    EXPECT_TRUE(window().createProject(file));
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Neu");
    click("Rezepte");
    EXPECT_EQ(tree().model()->rowCount(node("Rezepte")), 0);
    const BoxAnswers answers({"OK"});
    EXPECT_FALSE(window().createProject(file));
    ASSERT_EQ(answers.shown().size(), 1u);
    EXPECT_EQ(answers.shown()[0].text,
              "Die Datei gibt es schon. Bitte einen anderen Namen wählen:\n" + qt::fromQt(file));
}

TEST_F(StudioTest, TheClipboardOfTheUserSurvivesOpeningAProject) {
    start();
    QGuiApplication::clipboard()->setText("wichtig");
    open(makeProject());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "wichtig");
}

TEST_F(StudioTest, AnUnexpectedErrorEndsNothing) {
    start();
    open(makeProject());
    auto& recent = find<QMenu>(window(), "menuRecent");
    QTimer::singleShot(0, [] { throw automation::Error(7, "boom"); });
    EXPECT_NONFATAL_FAILURE(handleEvents(), "7: boom");
    emit recent.aboutToShow();
    EXPECT_EQ(window().windowTitle(), "HelvixStudio - Anlage");
}

}  // namespace
}  // namespace hx::gui
