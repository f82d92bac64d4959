// SPDX-License-Identifier: MIT
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

#include "adapters/qt/text.h"
#include "gui/macro_fixture.h"
#include "studio/output_buffer.h"

namespace hx::gui {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The menu or dialog that waits for the user, once it is shown.
QWidget* shownWindow() {
    QWidget* shown = QApplication::activePopupWidget();
    if (shown == nullptr) shown = QApplication::activeModalWidget();
    return shown != nullptr && shown->isVisible() ? shown : nullptr;
}

TEST_F(StudioMacroTest, StopsEndlessMacrosByTheButton) {
    start();
    open(makeProject());
    for (const char* text : {
             "while true do end",
             "while true do pcall(function() while true do end end) end",
             "while true do coroutine.wrap(function() while true do end end)() end",
             "while true do pcall(error) studio.Nodes() end",
             "project.Query('WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c) SELECT COUNT(*) FROM c')",
             "project.Query('WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c) SELECT x FROM c')",
             "studio.Click('RCPE0') studio.Click('RCPR1') studio.OnMessage(function() while true do end end)\n"
             "while true do editor.abr.Click('mnuRecipeDelete') end",
             "studio.Click('RCPE0') studio.Click('RCPR1') studio.OnDialog('FRecipe', function(d) while true do "
             "d.txtName.Text = 'x' end "
             "end)\n"
             "while true do pcall(editor.abr.Click, 'mnuRecipeEdit') end",
             "studio.Click('RCPE0') studio.RegisterComponent('HXProjectReport.Connect', {Show = function() while true "
             "do end end})\nwhile true do editor.mnuOption(7) end",
             "studio.Click('RCPE0') studio.OnPopup(function() while true do end end) studio.MouseUp('RCPE0', 2)",
         }) {
        const std::string shown = runAndStop(text);
        EXPECT_THAT(status(), StartsWith("test.lua: angehalten nach ")) << text;
        EXPECT_THAT(shown, HasSubstr("stack traceback:")) << text;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    click("Rezepte/Limonade");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    EXPECT_EQ(run("print(#project.Query('SELECT 1 FROM TrcpRecipe'))"), "3\n");
}

TEST_F(StudioMacroTest, KeepsTheLatestLinesOfAMacroThatPrintsWithoutEnd) {
    start();
    runAndStop("local n = 0 while true do n = n + 1 print(n, ('x'):rep(200)) end");
    EXPECT_LE(textOf().blockCount(), studio::MacroDock::lineCount);
    runAndStop("while true do io.write(('x'):rep(100000)) end");
    EXPECT_LE(textOf().blockCount(), studio::MacroDock::lineCount);
}

TEST_F(StudioMacroTest, StopsByItsKeyWhereverTheKeyboardIs) {
    start();
    open(makeProject());
    click("Rezepte");
    for (QWidget* widget :
         {static_cast<QWidget*>(&grid()), static_cast<QWidget*>(&tree()), static_cast<QWidget*>(&textOf())}) {
        run("while true do end", [widget] { QTest::keyClick(widget, Qt::Key_F5, Qt::ShiftModifier); });
        EXPECT_THAT(status(), StartsWith("test.lua: angehalten"));
    }
}

TEST_F(StudioMacroTest, HoldsBackTheUsersInputWhileItRuns) {
    start();
    open(makeProject());
    click("Rezepte");
    click("Rezepte/Limonade");
    run("while true do end", [this] {
        QTest::keyClick(&tree(), Qt::Key_Down);
        QTest::keyClick(&window(), Qt::Key_F5);
        QTest::keyClick(&window(), Qt::Key_W, Qt::ControlModifier);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {},
                          tree().visualRect(tree().model()->index(0, 0)).center());
        QTest::keyClick(&tree(), Qt::Key_Delete, Qt::ControlModifier);
        QTest::keyClick(&grid(), Qt::Key_F2);
        EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(grid().findChild<QLineEdit*>("cellEditor"), nullptr);
        EXPECT_FALSE(entry("test").isEnabled());
        EXPECT_FALSE(action("actionRunAgain").isEnabled());
        press("actionStopMacro");
    });
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    QTest::keyClick(&tree(), Qt::Key_Down);
    EXPECT_NE(tree().currentIndex(), node("Rezepte/Limonade"));
}

TEST_F(StudioMacroTest, ClosesTheDialogThatWaitsForTheUserWhenItIsStopped) {
    start();
    const QString file = makeProject();
    open(file);
    for (const char* text :
         {"studio.Click('RCPE0') studio.Click('RCPR1') while true do editor.abr.Click('mnuRecipeDelete') end",
          "studio.Click('RCPE0') studio.Click('RCPR1') while true do editor.abr.Click('mnuRecipeEdit') end",
          "while true do studio.MouseUp('RCPE0', 2) end"}) {
        run(
            text, [] { QTest::keyClick(shownWindow(), Qt::Key_F5, Qt::ShiftModifier); },
            [] { return shownWindow() != nullptr; });
        EXPECT_THAT(status(), StartsWith("test.lua: angehalten")) << text;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    }
    EXPECT_EQ(stored(file, 1).size(), 2U);
}

TEST_F(StudioMacroTest, ClosesDialogsInDialogsWhenItIsStopped) {
    start();
    open(makeProject());
    // The user is in the choice of a variable that a dialog has opened.
    run(
        "studio.Click('RCPE0') studio.Click('RCPR1') editor.abr.Click('mnuRecipeEdit') print('on') while true do end",
        [] {
            const NextModal<QWidget> inner(
                [](QWidget& choice) { QTest::keyClick(&choice, Qt::Key_F5, Qt::ShiftModifier); });
            QTest::mouseClick(&find<QWidget>(*shownWindow(), "cmdChooseItem(0)"), Qt::LeftButton);
        },
        [] { return shownWindow() != nullptr; });
    EXPECT_THAT(status(), StartsWith("test.lua: angehalten"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(StudioMacroTest, ClosesTheWindowOnceTheMacroHasStopped) {
    start();
    const QString file = makeProject();
    open(file);
    run("studio.Click('RCPE0') studio.Click('RCPR1') while true do end", [this] {
        window().close();
        EXPECT_TRUE(window().isVisible());
    });
    ASSERT_TRUE(waitUntil([this] { return !window().isVisible(); }));
    EXPECT_EQ(window().project(), nullptr);
    EXPECT_EQ(stored(file, 1).size(), 2U);
}

TEST_F(StudioMacroTest, GoesOnAsWithAUserWhoCancelsOnceAnAnswerHasFailed) {
    start();
    open(makeProject());
    const BoxAnswers nobody;
    const std::string shown = run(R"(studio.Click("RCPE0") studio.Click("RCPR1")
        studio.OnDialog("FRecipe", function(d) d.txtName.Text = "x" error("halt") end)
        editor.abr.Click("mnuRecipeEdit"))");
    EXPECT_THAT(shown, StartsWith("test.lua:2: halt\n"));
    EXPECT_TRUE(nobody.shown().empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(node("Rezepte/Limonade").isValid());
}

TEST(OutputBuffer, KeepsTheLatestTextAndCountsTheLinesThatAreLost) {
    studio::OutputBuffer buffer;
    std::size_t leftOut = 7;
    buffer.add("a\n");
    EXPECT_EQ(buffer.take(leftOut), "a\n");
    EXPECT_EQ(leftOut, 0U);
    std::size_t lines = 0;
    for (std::size_t size = 0; size < 5 * studio::OutputBuffer::capacity; size += 100, ++lines) {
        buffer.add(std::string(99, 'x') + "\n");
    }
    buffer.add("end\n");
    const QString text = buffer.take(leftOut);
    EXPECT_TRUE(text.endsWith("end\n"));
    EXPECT_LE(text.size(), static_cast<qsizetype>(2 * studio::OutputBuffer::capacity));
    EXPECT_EQ(leftOut + static_cast<std::size_t>(text.count('\n')), lines + 1);
    EXPECT_TRUE(buffer.isEmpty());
}

TEST(OutputBuffer, BreaksLinesThatAreTooLongBetweenCharacters) {
    studio::OutputBuffer buffer;
    std::size_t leftOut = 0;
    std::string umlauts;
    for (int i = 0; i < 5000; ++i) umlauts += "ä";
    buffer.add("x");
    buffer.add(umlauts + "\n" + std::string(studio::OutputBuffer::longestLine, 'y') + "\n");
    const QString text = buffer.take(leftOut);
    const QStringList parts = text.split('\n');
    ASSERT_EQ(parts.size(), 5);
    EXPECT_EQ(parts[0] + parts[1] + parts[2], "x" + QString(5000, QChar(0xE4)));
    EXPECT_EQ(parts[3].size(), static_cast<qsizetype>(studio::OutputBuffer::longestLine));
    buffer.add(std::string(3 * studio::OutputBuffer::capacity, '\x80'));
    EXPECT_GT(buffer.take(leftOut).size(), 0);
}

}  // namespace
}  // namespace hx::gui
