// SPDX-License-Identifier: MIT
#include <QAction>
#include <QDockWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>

#include "adapters/qt/text.h"
#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// The other language in the running studio.
class StudioLanguage : public StudioTest {
  protected:
    void choose(const char* name) {
        find<QAction>(window(), name).trigger();
        handleEvents();
    }
};

TEST_F(StudioLanguage, ChangesStudioAndEditorAtOnceAndTheUserStaysWhereHeIs) {
    startAtMembers();
    click("Rezepte/Meyer's Bräu");
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    grid().setCurrentIndex(grid().model()->index(1, column("Dateiname")));
    choose("actionEnglish");
    EXPECT_EQ(find<QMenu>(window(), "menuFile").title(), "&File");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Recipe Editor: Meyer's Bräu");
    EXPECT_EQ(tree().currentIndex(), node("Recipes/Meyer's Bräu/Sub Recipes"));
    EXPECT_EQ(grid().currentIndex().row(), 1);
    EXPECT_EQ(documents().subWindowList().size(), 1);
    EXPECT_EQ(host().registry().readNumber("SOFTWARE\\Tarnwell\\Helvix\\4.0", "LCID", 0), 1033);
    choose("actionGerman");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Meyer's Bräu");
    EXPECT_TRUE(node("Rezepte/Meyer's Bräu/Unterrezepte").isValid());
}

TEST_F(StudioLanguage, LeavesABranchClosedThatIsClosed) {
    start();
    open(makeProject());
    choose("actionEnglish");
    EXPECT_EQ(editorWindow(), nullptr);
    click("Recipes");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Recipe Editor");
}

TEST_F(StudioLanguage, KeepsWhatCanBeUndone) {
    const QString file = startAtMembers();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    choose("actionEnglish");
    EXPECT_EQ(find<QAction>(window(), "actionUndo").text(), "&Undo: Variable changed: “Neu” in “Limonade”");
    find<QAction>(window(), "actionUndo").trigger();
    handleEvents();
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
}

TEST_F(StudioLanguage, AsksBeforeItStoresWhatIsBeingTyped) {
    const QString file = startAtMembers();
    edit(0, "Variable", "Neu");
    {
        const BoxAnswers answers({"Nein"});
        choose("actionEnglish");
        ASSERT_EQ(answers.shown().size(), 1U);
        EXPECT_EQ(answers.shown()[0].text,
                  "Das Projekt wird in der anderen Sprache neu geöffnet. Soll zuvor gespeichert werden, was gerade "
                  "eingegeben wird?");
    }
    EXPECT_EQ(find<QMenu>(window(), "menuFile").title(), "&Datei");
    EXPECT_TRUE(find<QAction>(window(), "actionGerman").isChecked());
    EXPECT_EQ(stored(file, 1)[0], "Mischer.Zucker");
    const BoxAnswers answers({"Ja"});
    choose("actionEnglish");
    EXPECT_EQ(find<QMenu>(window(), "menuFile").title(), "&File");
    EXPECT_EQ(stored(file, 1)[0], "Neu");
}

}  // namespace
}  // namespace hx::gui
