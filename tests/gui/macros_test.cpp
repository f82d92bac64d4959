// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QToolBar>
#include <clocale>

#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Texts = std::vector<std::string>;

// What GoogleTest brings knows no sets of characters on Windows.
MATCHER_P(HasPattern, pattern, "") {
    return QRegularExpression(QString::fromUtf8(pattern)).match(QString::fromStdString(arg)).hasMatch();
}

Texts textsOf(const QMenu& menu) {
    Texts texts;
    for (const QAction* action : menu.actions()) texts.push_back(action->text().toStdString());
    return texts;
}

TEST_F(StudioMacroTest, TheMenuListsTheMacrosOfTheUsersFolder) {
    start();
    (void)action("actionRunMacroFile");
    EXPECT_EQ(textsOf(menu())[0], "(noch keine Makros)");
    writeMacro("Teil 10.lua", "");
    writeMacro("Teil 9.lua", "-----\n--  Benennt um.\n-- Mehr.");
    writeMacro("a & b.lua", "--[[ Lang ]]");
    writeMacro("kein Makro.txt", "");
    writeMacro("Wartung/Prüfen.lua", "print(1)");
    emit menu().aboutToShow();
    EXPECT_EQ(textsOf(menu()),
              (Texts{"a && b", "Teil 9", "Teil 10", "Wartung", "", "Makrodatei aus&führen …", "&Nochmals ausführen",
                     "&Anhalten", "", "Makro&ordner öffnen", "&Beispielmakros kopieren"}));
    EXPECT_EQ(entry("Teil 9").toolTip(), "Benennt um.");
    EXPECT_EQ(entry("Teil 9").statusTip(), "Benennt um.");
    EXPECT_EQ(entry("a && b").toolTip(), "Lang");
    EXPECT_EQ(entry("Wartung/Prüfen").toolTip(), "Makro Prüfen ausführen");
    QFile::remove(folder.filePath("config/macros/Teil 9.lua"));
    emit menu().aboutToShow();
    EXPECT_EQ(textsOf(menu())[1], "Teil 10");
}

TEST_F(StudioMacroTest, TheMenuStandsBeforeTheHelp) {
    start();
    const auto bar = window().menuBar()->actions();
    ASSERT_GE(bar.size(), 2);
    EXPECT_EQ(bar[bar.size() - 2]->text(), "&Makros");
    EXPECT_EQ(bar.last()->text(), "&Hilfe");
}

TEST_F(StudioMacroTest, ShowsWhatAMacroPrintsInADock) {
    start();
    auto& dock = find<QDockWidget>(window(), "macroDock");
    EXPECT_FALSE(dock.isVisible());
    EXPECT_EQ(run("print('Grüße', 1, nil)\nio.write('a', 'b')"), "Grüße\t1\tnil\nab");
    EXPECT_TRUE(dock.isVisible());
    EXPECT_THAT(output(), HasPattern("^── test.lua  [0-9:]+ ──\n"));
    EXPECT_THAT(status(), HasPattern("^test.lua: fertig nach [0-9]+,[0-9] s$"));
    press("actionCopyOutput");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), output());
    QTest::keyClick(&window(), Qt::Key_F5);
    EXPECT_TRUE(waitUntil([this] { return output().find("\n── test.lua  ") != std::string::npos && !running(); }));
    EXPECT_THAT(output(), HasPattern("\nab\n── test.lua  [0-9:]+ ──\nGrüße\t1\tnil\nab$"));
    press("actionClearOutput");
    EXPECT_EQ(output(), "");
}

TEST_F(StudioMacroTest, WritesAndReadsNumbersWithAPointInEveryLocale) {
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    start();
    EXPECT_EQ(run("print(2.5, '2.5' + 0)"), "2.5\t2.5\n");
}

TEST_F(StudioMacroTest, ShowsAnErrorWithItsLineInRed) {
    start();
    const std::string text = run("io.write('vorher')\n\nlocal function f() error('genug') end\nf()");
    EXPECT_THAT(text, StartsWith("vorher\ntest.lua:3: genug\nstack traceback:\n"));
    EXPECT_EQ(status(), "test.lua: fehlgeschlagen in Zeile 3");
    const QTextCursor error(textOf().document()->findBlockByNumber(2));
    const QColor colour = error.block().begin().fragment().charFormat().foreground().color();
    EXPECT_GT(colour.red(), 2 * colour.green());
    EXPECT_EQ(run("x = ="), "test.lua:1: unexpected symbol near '='\n");
    EXPECT_THAT(run("error({})"), StartsWith("table: "));
    EXPECT_EQ(status(), "test.lua: fehlgeschlagen");
}

TEST_F(StudioMacroTest, SaysThatAProjectIsNeeded) {
    start();
    EXPECT_THAT(run("studio.Click('RCPE0')"), HasSubstr("No project is open"));
    EXPECT_THAT(run("project.Query('SELECT 1')"), HasSubstr("No project is open"));
    EXPECT_EQ(run("print(addin, editor, #studio.Nodes(), studio.Selected())"), "nil\tnil\t0\tnil\n");
}

TEST_F(StudioMacroTest, RunsTheLastMacroAgainByItsKeyAndGivesItArguments) {
    start();
    EXPECT_EQ(run("print(...)"), "\n");
    find<QLineEdit>(window(), "macroArguments").setText("eins \"zwei drei\"");
    press("actionClearOutput");
    QTest::keyClick(&window(), Qt::Key_F5);
    ASSERT_TRUE(waitUntil([this] { return output().ends_with("eins\tzwei drei\n"); })) << output();
    writeMacro("other.lua", "");
    entry("other").trigger();
    handleEvents();
    EXPECT_EQ(find<QLineEdit>(window(), "macroArguments").text(), "");
    entry("test").trigger();
    handleEvents();
    EXPECT_EQ(find<QLineEdit>(window(), "macroArguments").text(), "eins \"zwei drei\"");
}

TEST_F(StudioMacroTest, ReportsAMacroThatCannotBeRead) {
    start();
    writeMacro("gone.lua", "");
    QAction& gone = entry("gone");
    QFile::remove(folder.filePath("config/macros/gone.lua"));
    gone.trigger();
    handleEvents();
    EXPECT_THAT(status(), StartsWith("Die Datei kann nicht gelesen werden: "));
    EXPECT_FALSE(running());
}

TEST_F(StudioMacroTest, CopiesTheSampleMacrosAndOverwritesNone) {
    start();
    QTest::qWait(1);
    action("actionSampleMacros").trigger();
    const QDir samples(folder.filePath("config/macros/samples"));
    const QStringList names = samples.entryList({"*.lua"});
    ASSERT_GE(names.size(), 5);
    EXPECT_EQ(entry("samples/" + names[0].chopped(4)).isEnabled(), true);
    writeMacro("samples/" + names[0], "-- meins");
    QFile::remove(samples.filePath(names[1]));
    action("actionSampleMacros").trigger();
    EXPECT_TRUE(QFile::exists(samples.filePath(names[1])));
    EXPECT_EQ(entry("samples/" + names[0].chopped(4)).toolTip(), "meins");
}

TEST_F(StudioMacroTest, FollowsTheLanguageOfTheStudio) {
    start();
    run("print(1)");
    window().chooseLanguage(qt::Wording::english);
    EXPECT_EQ(menu().title(), "M&acros");
    EXPECT_EQ(action("actionStopMacro").text(), "&Stop");
    EXPECT_EQ(find<QDockWidget>(window(), "macroDock").windowTitle(), "Macro output");
    EXPECT_EQ(textOf().accessibleName(), "Macro output");
    EXPECT_THAT(status(), HasPattern("^test.lua: done in [0-9]+\\.[0-9] s$"));
    Texts views;
    for (const QAction* view : find<QMenu>(window(), "menuView").actions()) views.push_back(view->text().toStdString());
    EXPECT_THAT(views, ElementsAre("Project Explorer", "History", "Macro output", "Problems", "Where Used",
                                   "Find and Replace", "Current Variable"));
    run("while true do end", [this] {
        EXPECT_EQ(status(), "test.lua is running… (Shift+F5 stops it)");
        press("actionStopMacro");
    });
    EXPECT_THAT(status(), StartsWith("test.lua: stopped after "));
}

TEST_F(StudioMacroTest, TheOutputIsReachedByKeyboardAndRemembersThatItWasOpen) {
    start();
    run("print(1)");
    auto& tools = find<QToolBar>(window(), "macroTools");
    QWidget* clear = tools.widgetForAction(&action("actionClearOutput"));
    find<QLineEdit>(window(), "macroArguments").setFocus();
    for (int i = 0; i < 3 && QApplication::focusWidget() != clear; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    }
    ASSERT_EQ(QApplication::focusWidget(), clear);
    QTest::keyClick(clear, Qt::Key_Space);
    EXPECT_EQ(output(), "");
    quit();
    start();
    EXPECT_TRUE(find<QDockWidget>(window(), "macroDock").isVisible());
}

TEST_F(StudioMacroTest, EachRunBeginsWithoutWhatTheOneBeforeLeft) {
    start();
    open(makeProject());
    EXPECT_EQ(run(R"(x = 1 studio.OnMessage(function() return "no" end) studio.Click("RCPE0")
        studio.Click("RCPR2") editor.abr.Click("mnuRecipeDelete") editor.abr.Click("mnuRecipeDelete")
        print(#studio.Messages()) editor.abr.Click("mnuRecipeDelete"))"),
              "2\n");
    const BoxAnswers answers({"Ja"});
    EXPECT_EQ(run(R"(print(x, #studio.Messages(), #studio.Components()) studio.Click("RCPR2")
        editor.abr.Click("mnuRecipeDelete") print(studio.Messages()[1].answer))"),
              "nil\t0\t0\nyes\n");
    EXPECT_EQ(answers.shown().size(), 1U);
}

TEST_F(StudioMacroTest, UsesNoFilesElsewhereAndStartsNoPrograms) {
    start();
    open(makeProject());
    EXPECT_EQ(run(R"(print(os.execute, os.remove, io.popen, require, debug)
        local f = io.open("liste.txt", "w") f:write("Cola") f:close()
        print((pcall(io.open, "/etc/hostname")), (pcall(io.open, "../x", "w")), (pcall(io.open, "Anlage.hxs", "w"))))"),
              "nil\tnil\tnil\tnil\tnil\nfalse\tfalse\tfalse\n");
    QFile list(folder.filePath("liste.txt"));
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    EXPECT_EQ(list.readAll(), "Cola");
}

}  // namespace
}  // namespace hx::gui
