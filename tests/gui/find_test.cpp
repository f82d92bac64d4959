// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QPushButton>

#include "gui/find_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

class StudioReplace : public StudioFind {
  protected:
    void look(const QString& text) {
        QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        auto& field = find<QLineEdit>(window(), "findText");
        ASSERT_TRUE(field.hasFocus());
        field.clear();
        type(field, text);
        QTest::keyClick(&field, Qt::Key_Return);
        ASSERT_TRUE(waitUntil([this] { return state() != "Sucht …" && !state().empty(); }));
    }
    void tick(const char* name) { find<QCheckBox>(window(), name).click(); }
    void replaceBy(const QString& text) {
        if (!find<QCheckBox>(window(), "replacing").isChecked()) tick("replacing");
        find<QLineEdit>(window(), "replaceText").setText(text);
    }
    void press(const char* name) {
        QTest::mouseClick(&find<QPushButton>(window(), name), Qt::LeftButton);
        handleEvents();
    }
    [[nodiscard]] std::string state() { return find<QLabel>(window(), "findState").text().toStdString(); }
};

TEST_F(StudioReplace, FindsRecipeByRecipeAndShowsWhere) {
    showMembers();
    look("limonade");
    EXPECT_TRUE(comes(
        "findList", {"Limonade (1)", "  Name|Limonade", "Meyer's Bräu (1)",
                     "  Dateiname eines Unterrezepts|Datei.Limonade", "Variablenliste (1)", "  Name|Datei.Limonade"}));
    EXPECT_EQ(state(), "3 gefunden");
    clickThing("findList", 1, 0, true);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
    EXPECT_EQ(grid().currentIndex().row(), 0);
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(StudioReplace, LooksAsItIsTold) {
    showMembers();
    look("mischer");
    ASSERT_TRUE(waitUntil([this] { return state() == "5 gefunden"; }));
    tick("matchCase");
    EXPECT_TRUE(waitUntil([this] { return state() == "Nicht gefunden"; }));
    tick("matchCase");
    tick("findInVariables");
    EXPECT_TRUE(waitUntil([this] { return state() == "3 gefunden"; }));
    look("misch");
    tick("wholeWord");
    EXPECT_TRUE(waitUntil([this] { return state() == "Nicht gefunden"; }));
    tick("wholeWord");
    tick("regular");
    look("^misch.*(wasser|saft)$");
    EXPECT_TRUE(waitUntil([this] { return state() == "2 gefunden"; }));
    look("(");
    EXPECT_TRUE(waitUntil([this] { return state().starts_with("Das ist kein regulärer Ausdruck: "); }));
}

TEST_F(StudioReplace, ShowsWhatTheTextsBecomeAndReplacesAllInOneStep) {
    showMembers();
    look("mischer");
    ASSERT_TRUE(waitUntil([this] { return state() == "5 gefunden"; }));
    replaceBy("Linie");
    EXPECT_EQ(lines("findList"),
              (Texts{"Limonade (2)", "  Variable|Mischer.Zucker|Linie.Zucker", "  Variable|Mischer.Wasser|Linie.Wasser",
                     "Apfelschorle (1)", "  Variable|Mischer.Apfelsaft|Linie.Apfelsaft", "Variablenliste (2)",
                     "  Name|Mischer.Wasser|Linie.Wasser", "  Name|Mischer.Apfelsaft|Linie.Apfelsaft"}));
    press("replaceAll");
    EXPECT_EQ(texts("Variable"), (Texts{"Linie.Zucker", "Linie.Wasser"}));
    EXPECT_EQ(stored(file, 2), Texts{"Linie.Apfelsaft"});
    EXPECT_TRUE(waitUntil([this] { return state() == "Nicht gefunden"; }));
    EXPECT_EQ(action("actionUndo").text().toStdString(), "&Rückgängig: Ersetzt: „mischer“ durch „Linie“");
    action("actionUndo").trigger();
    handleEvents();
    EXPECT_EQ(texts("Variable"), (Texts{"Mischer.Zucker", "Mischer.Wasser"}));
    EXPECT_TRUE(waitUntil([this] { return state() == "5 gefunden"; }));
}

TEST_F(StudioReplace, ReplacesWhatIsSelected) {
    showMembers();
    look("mischer");
    ASSERT_TRUE(waitUntil([this] { return state() == "5 gefunden"; }));
    EXPECT_FALSE(find<QPushButton>(window(), "replaceSelected").isEnabled());
    replaceBy("Linie");
    EXPECT_FALSE(find<QPushButton>(window(), "replaceSelected").isEnabled());
    clickThing("findList", 0, 1);
    press("replaceSelected");
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Linie.Wasser"}));
    EXPECT_TRUE(waitUntil([this] { return state() == "4 gefunden"; }));
}

TEST_F(StudioReplace, RenamesRecipesInTheExplorerToo) {
    showMembers();
    tick("regular");
    look("^(\\w+)schorle$");
    ASSERT_TRUE(waitUntil([this] { return state() == "1 gefunden"; }));
    replaceBy("\\1saft");
    press("replaceAll");
    EXPECT_TRUE(node("Rezepte/Apfelsaft").isValid());
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
}

TEST_F(StudioReplace, KeepsWhatIsBeingTypedAndTellsWhatIsNotPossible) {
    showMembers();
    look("apfelschorle");
    ASSERT_TRUE(waitUntil([this] { return state() == "1 gefunden"; }));
    replaceBy("Limonade");
    typeInCell(1, "Variable", "Neu");
    const BoxAnswers told;
    press("replaceAll");
    ASSERT_EQ(told.shown().size(), 1U);
    EXPECT_EQ(told.shown()[0].text, "„Apfelschorle“ kann nicht „Limonade“ werden: diesen Namen gibt es schon.");
    EXPECT_EQ(stored(file, 1), (Texts{"Mischer.Zucker", "Neu"}));
    EXPECT_TRUE(node("Rezepte/Apfelschorle").isValid());
}

class StudioWhereUsed : public StudioFind {
  protected:
    [[nodiscard]] std::string state() { return find<QLabel>(window(), "whereUsedState").text().toStdString(); }
    void ask() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F12, Qt::ShiftModifier);
        handleEvents();
    }
};

TEST_F(StudioWhereUsed, OfAVariableNamesRecipesAndThoseThatIncludeThem) {
    showMembers();
    execute("UPDATE TrcpRecipe SET VarSave = 'mischer.wasser' WHERE ID = 2");
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(1, column("Variable")));
    ask();
    EXPECT_TRUE(comes("whereUsedList", {"Rezepte, die sie nennen (1)", "  Apfelschorle|Speichertrigger",
                                        "Rezepte, die sie enthalten (1)", "  Limonade|Variable",
                                        "Über Unterrezepte (1)", "  Meyer's Bräu|über Limonade"}));
    EXPECT_EQ(find<QLineEdit>(window(), "whereUsedName").text(), "Mischer.Wasser");
    EXPECT_EQ(state(), "3 Verwendungen");
}

TEST_F(StudioWhereUsed, OfARecipeNamesItsParentsAndFollowsEachChange) {
    showMembers();
    tree().setFocus();
    ask();
    EXPECT_TRUE(comes("whereUsedList", {"Rezepte, die es enthalten (1)", "  Meyer's Bräu|Unterrezept"}));
    EXPECT_EQ(find<QLineEdit>(window(), "whereUsedName").text(), "Limonade");
    clickThing("whereUsedList", 0, 0);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
    EXPECT_EQ(grid().currentIndex().row(), 0);
    execute("INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (2, 1, '')");
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    EXPECT_TRUE(comes("whereUsedList",
                      {"Rezepte, die es enthalten (2)", "  Meyer's Bräu|Unterrezept", "  Apfelschorle|Unterrezept"}));
}

TEST_F(StudioWhereUsed, AsksForANameWhereThereIsNone) {
    showMembers();
    click("Rezepte");
    tree().setFocus();
    ask();
    auto& field = find<QLineEdit>(window(), "whereUsedName");
    ASSERT_TRUE(field.hasFocus());
    type(field, "fehlt");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return state() == "Weder eine Variable noch ein Rezept heißt so"; }));
    field.clear();
    type(field, "datei.limonade");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(comes("whereUsedList", {"Dateiname von Unterrezepten (1)", "  Meyer's Bräu|Limonade"}));
}

class StudioNavigation : public StudioFind {
  protected:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        handleEvents();
    }
    [[nodiscard]] std::string current() { return tree().currentIndex().data().toString().toStdString(); }
};

TEST_F(StudioNavigation, GoesBackAndForwardThroughTheNodesVisited) {
    showMembers();
    click("Rezepte/Apfelschorle");
    click("Rezepte/Meyer's Bräu");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "Apfelschorle");
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Apfelschorle");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "Limonade");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(current(), "Apfelschorle");
    click("Rezepte/Limonade");
    EXPECT_FALSE(action("actionForward").isEnabled());
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "Apfelschorle");
    window().closeProject();
    EXPECT_FALSE(action("actionBack").isEnabled());
}

TEST_F(StudioNavigation, InTheGridTheKeysAreTheGrids) {
    showMembers();
    click("Rezepte/Apfelschorle");
    grid().setFocus();
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "Apfelschorle");
    action("actionBack").trigger();
    handleEvents();
    EXPECT_EQ(current(), "Limonade");
}

TEST_F(StudioNavigation, PassesOverWhatHasBeenDeleted) {
    showMembers();
    click("Rezepte/Apfelschorle");
    click("Rezepte/Meyer's Bräu");
    execute("DELETE FROM TrcpRecipe WHERE ID = 2");
    (void)std::dynamic_pointer_cast<automation::Dispatch>(window().project()->addIn())->get("RefreshView");
    click("Rezepte/Meyer's Bräu");
    Texts visited;
    while (action("actionBack").isEnabled()) {
        const std::string before = current();
        action("actionBack").trigger();
        handleEvents();
        if (current() == before) break;
        visited.push_back(current());
    }
    EXPECT_EQ(std::ranges::count(visited, "Apfelschorle"), 0);
    EXPECT_EQ(std::ranges::count(visited, "Limonade"), 1);
}

TEST_F(StudioNavigation, GoesToTheSubRecipeOfTheRow) {
    showMembers();
    click("Rezepte/Meyer's Bräu/Unterrezepte");
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(1, column("Unterrezept")));
    press(Qt::Key_F12);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Apfelschorle"));
    EXPECT_TRUE(tree().hasFocus());
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Meyer's Bräu/Unterrezepte"));
}

TEST_F(StudioNavigation, RenamesARecipeInItsPlace) {
    showMembers();
    tree().setFocus();
    press(Qt::Key_F2);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text(), "Limonade");
    field->setText("Brause");
    QTest::keyClick(field, Qt::Key_Return);
    handleEvents();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Brause"));
    EXPECT_TRUE(tree().hasFocus());
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Brause");
    EXPECT_EQ(action("actionUndo").text().toStdString(), "&Rückgängig: Rezept „Limonade“ in „Brause“ umbenannt");
    action("actionUndo").trigger();
    handleEvents();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
}

TEST_F(StudioNavigation, TellsWhyARecipeIsNotRenamed) {
    showMembers();
    tree().setFocus();
    press(Qt::Key_F2);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    field->setText("APFELSCHORLE");
    const BoxAnswers told;
    QTest::keyClick(field, Qt::Key_Return);
    handleEvents();
    ASSERT_EQ(told.shown().size(), 1U);
    EXPECT_EQ(told.shown()[0].text, "„Limonade“ kann nicht „APFELSCHORLE“ werden: diesen Namen gibt es schon.");
    EXPECT_TRUE(node("Rezepte/Limonade").isValid());
}

TEST_F(StudioNavigation, InACellTheKeyEditsTheCell) {
    showMembers();
    grid().setFocus();
    grid().setCurrentIndex(grid().model()->index(0, column("Variable")));
    press(Qt::Key_F2);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "cellEditor");
    EXPECT_FALSE(find<QAction>(window(), "actionRename").shortcutContext() == Qt::WindowShortcut);
}

}  // namespace
}  // namespace hx::gui
