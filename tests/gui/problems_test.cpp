// SPDX-License-Identifier: MIT
#include <QToolButton>

#include "gui/find_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

class StudioProblems : public StudioFind {
  protected:
    [[nodiscard]] QToolButton& count() { return find<QToolButton>(window(), "problemsCount"); }
    [[nodiscard]] bool counts(const char* text) {
        return waitUntil([&] { return count().text().toStdString() == text; });
    }
    const Texts atFirst{"Unterrezepte ohne Dateinamen (1)",
                        "  Meyer's Bräu|Das Unterrezept „Apfelschorle“ hat keine Variable für seinen Dateinamen.",
                        "Unbekannte Variablen (1)",
                        "  Limonade|Die Variable „Mischer.Zucker“ steht nicht in der Variablenliste."};
};

TEST_F(StudioProblems, AreListedByKindsAndCountedInTheStatusLine) {
    showMembers();
    EXPECT_TRUE(comes("problemsList", atFirst));
    EXPECT_EQ(count().text(), "2 Probleme");
    EXPECT_TRUE(count().isVisible());
    QTest::mouseClick(&count(), Qt::LeftButton);
    EXPECT_TRUE(list("problemsList").isVisible());
}

TEST_F(StudioProblems, FollowEachChangeAndUndo) {
    showMembers();
    ASSERT_TRUE(counts("2 Probleme"));
    edit(0, "Variable", "Mischer.Apfelsaft");
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_TRUE(counts("1 Problem"));
    action("actionUndo").trigger();
    EXPECT_TRUE(counts("2 Probleme"));
}

TEST_F(StudioProblems, FollowWhatAnotherProgramChanges) {
    showMembers();
    ASSERT_TRUE(counts("2 Probleme"));
    execute("UPDATE TrcpRecipe SET VarLoad = 'Fehlt'");
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    EXPECT_TRUE(counts("6 Probleme"));
    EXPECT_EQ(lines("problemsList").back(),
              "  Limonade|Die Triggervariable „Fehlt“ (Ladetrigger) löst auch „Apfelschorle“ (Ladetrigger), „Meyer's "
              "Bräu“ (Ladetrigger) aus.");
}

TEST_F(StudioProblems, AClickGoesToTheRowInTheGrid) {
    showMembers();
    ASSERT_TRUE(comes("problemsList", atFirst));
    action("actionFilter").trigger();
    find<QDockWidget>(window(), "problemsDock").show();
    clickThing("problemsList", 0, 0);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
    EXPECT_EQ(grid().currentIndex().row(), 1);
    clickThing("problemsList", 1, 0, true);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    EXPECT_EQ(grid().currentIndex().row(), 0);
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(StudioProblems, ADoubleClickGoesToTheFieldInTheDialog) {
    showMembers();
    execute("UPDATE TrcpRecipe SET VarRead = 'Fehlt' WHERE ID = 2");
    ASSERT_TRUE(waitUntil([this] { return lines("problemsList").size() > 1; }));
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    ASSERT_TRUE(waitUntil([this] { return lines("problemsList").size() == 5; }));
    find<QDockWidget>(window(), "problemsDock").show();
    handleEvents();
    std::string focused;
    const NextModal<QWidget> dialog([&](QWidget& shown) {
        EXPECT_TRUE(waitUntil([&] {
            const QWidget* at = QApplication::focusWidget();
            focused = at == nullptr ? "" : at->objectName().toStdString();
            return focused == "txtVarRead";
        }));
        EXPECT_TRUE(find<QWidget>(shown, "txtVarRead").isVisible());
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    const QAbstractItemModel& model = *list("problemsList").model();
    const QModelIndex unknown = model.index(1, 0);
    ASSERT_EQ(model.rowCount(unknown), 2);
    clickThing("problemsList", 1, 0, true);
    EXPECT_EQ(focused, "txtVarRead");
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Apfelschorle"));
}

TEST_F(StudioProblems, AreFilteredByWords) {
    showMembers();
    ASSERT_TRUE(comes("problemsList", atFirst));
    find<QLineEdit>(window(), "problemsFilter").setText("bräu apfel");
    EXPECT_EQ(lines("problemsList"), (Texts{atFirst[0], atFirst[1]}));
    EXPECT_EQ(count().text(), "2 Probleme");
}

TEST_F(StudioProblems, SpeakTheLanguageOfTheStudioAndEndWithTheProject) {
    showMembers();
    ASSERT_TRUE(comes("problemsList", atFirst));
    window().chooseLanguage(qt::Wording::english);
    EXPECT_TRUE(waitUntil([this] {
        return lines("problemsList").back() ==
               "  Limonade|The variable \"Mischer.Zucker\" is not in the variable list.";
    }));
    EXPECT_EQ(count().text(), "2 problems");
    window().closeProject();
    EXPECT_EQ(lines("problemsList"), Texts());
    EXPECT_FALSE(count().isVisible());
}

TEST_F(StudioProblems, UnknownVariablesAreMarkedInTheGrid) {
    showMembers();
    const auto tip = [this](int row) {
        return grid().model()->index(row, column("Variable")).data(Qt::ToolTipRole).toString().toStdString();
    };
    ASSERT_TRUE(waitUntil([&] { return !tip(0).empty(); }));
    EXPECT_EQ(tip(0), "Die Variable Mischer.Zucker steht nicht in der Variablenliste");
    EXPECT_EQ(tip(1), "");
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    const auto redsIn = [this](int row) {
        const QImage image =
            grid().viewport()->grab(grid().visualRect(grid().model()->index(row, column("Variable")))).toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.red() > 150 && color.green() < 90 && color.blue() < 90 ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_GT(redsIn(0), 0);
    EXPECT_EQ(redsIn(1), 0);
}

}  // namespace
}  // namespace hx::gui
