// SPDX-License-Identifier: MIT
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "adapters/sqlite/provider.h"
#include "ado/recordset.h"
#include "gui/macro_fixture.h"

namespace hx::gui {
namespace {

using Texts = std::vector<std::string>;

/// Undo and redo in the real studio.
class StudioHistory : public StudioMacroTest {
  protected:
    QString file;

    void showMembers() {
        file = startAtMembers();
        handleEvents();
    }
    void deleteRecipe() {
        const BoxAnswers answers({"Ja"});
        run("editor.abr.Click('mnuRecipeDelete')");
        EXPECT_EQ(answers.shown().size(), 1U);
    }
    [[nodiscard]] QListView& list() { return find<QListView>(window(), "historyList"); }
    [[nodiscard]] Texts steps() {
        Texts texts;
        const auto& model = *list().model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.push_back(model.index(row, 0).data().toString().toStdString());
        return texts;
    }
    /// As the tool bar does.
    void refreshView() {
        forms::Form* const editor = host().attendedScreen().find("frmtabgrid");
        ASSERT_NE(editor, nullptr);
        const automation::Variant tool("mnuOptionActualize");
        (void)editor->get("abr").asObject()->get("Click", automation::Args(&tool, 1));
        handleEvents();
    }
    void undo() {
        action("actionUndo").trigger();
        handleEvents();
    }
    void redo() {
        action("actionRedo").trigger();
        handleEvents();
    }
    [[nodiscard]] bool isThere(const QString& path) {
        try {
            return node(path).isValid();
        } catch (const std::exception&) {
            return false;
        }
    }
    /// As another program does.
    void execute(const std::string& command) {
        sqlite::Provider provider;
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + file.toStdString() + ";Mode=Read|Write|Share Deny None;");
        ado::Recordset().open(command, connection);
    }
};

TEST_F(StudioHistory, AnEditInTheGridIsUndoneAndDoneAgain) {
    showMembers();
    const Texts before = texts("Variable");
    EXPECT_FALSE(action("actionUndo").isEnabled());
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    const Texts after = texts("Variable");
    ASSERT_EQ(after[0], "Neu");
    ASSERT_TRUE(action("actionUndo").isEnabled());
    EXPECT_EQ(action("actionUndo").text(), "&Rückgängig: Variable geändert: „Neu“ in „Limonade“");
    undo();
    EXPECT_EQ(texts("Variable"), before);
    EXPECT_EQ(stored(file, 1), before);
    EXPECT_FALSE(action("actionUndo").isEnabled());
    redo();
    EXPECT_EQ(texts("Variable"), after);
    EXPECT_EQ(stored(file, 1), after);
    EXPECT_FALSE(action("actionRedo").isEnabled());
}

TEST_F(StudioHistory, WhatIsBeingTypedIsAStepOfItsOwn) {
    showMembers();
    const Texts before = texts("Variable");
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    typeInCell(1, "Variable", "Später");
    undo();
    EXPECT_EQ(texts("Variable"), (Texts{"Neu", before[1]}));
    EXPECT_EQ(steps().size(), 3U);
    undo();
    EXPECT_EQ(texts("Variable"), before);
    redo();
    redo();
    EXPECT_EQ(stored(file, 1), (Texts{"Neu", "Später"}));
}

TEST_F(StudioHistory, RedoTakesNothingBackThatIsBeingTyped) {
    showMembers();
    const Texts before = texts("Variable");
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    undo();
    typeInCell(1, "Variable", "Später");
    redo();
    EXPECT_EQ(stored(file, 1), (Texts{before[0], "Später"}));
    EXPECT_EQ(texts("Variable"), (Texts{before[0], "Später"}));
    EXPECT_FALSE(action("actionRedo").isEnabled());
}

TEST_F(StudioHistory, IsUndoneWhereNoRecipeIsShown) {
    showMembers();
    const Texts before = texts("Variable");
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    click("Rezepte");
    undo();
    EXPECT_EQ(stored(file, 1), before);
    EXPECT_EQ(texts("Variable"), before);
}

TEST_F(StudioHistory, ADeletedRecipeComesBackWithItsMembersWhereItWas) {
    showMembers();
    tree().expand(node("Rezepte/Meyer's Bräu"));
    const Texts before = texts("Variable");
    deleteRecipe();
    ASSERT_FALSE(isThere("Rezepte/Limonade"));
    undo();
    ASSERT_TRUE(isThere("Rezepte/Limonade"));
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    EXPECT_TRUE(tree().isExpanded(node("Rezepte/Meyer's Bräu")));
    EXPECT_FALSE(tree().isExpanded(node("Rezepte/Apfelschorle")));
    EXPECT_EQ(texts("Variable"), before);
    EXPECT_EQ(stored(file, 1), before);
    redo();
    EXPECT_FALSE(isThere("Rezepte/Limonade"));
    EXPECT_TRUE(tree().isExpanded(node("Rezepte/Meyer's Bräu")));
}

TEST_F(StudioHistory, ShowsWhereTheChangeWas) {
    showMembers();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    click("Rezepte/Apfelschorle");
    undo();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    EXPECT_NE(texts("Variable")[0], "Neu");
}

TEST_F(StudioHistory, AMacroIsOneStep) {
    showMembers();
    const Texts before = stored(file, 1);
    run("for i = 0, 1 do editor.tdbRM.SetText(i, 'VarRecipe', 'M' .. i) editor.tdbRM.Update() end");
    EXPECT_EQ(stored(file, 1), (Texts{"M0", "M1"}));
    EXPECT_EQ(steps().size(), 2U);
    EXPECT_TRUE(steps()[1].starts_with("Makro „")) << steps()[1];
    undo();
    EXPECT_EQ(stored(file, 1), before);
    EXPECT_EQ(texts("Variable"), before);
}

TEST_F(StudioHistory, TheListGoesToAnyOfItsSteps) {
    showMembers();
    const Texts before = texts("Variable");
    for (const char* text : {"A", "B", "C"}) {
        edit(0, "Variable", text);
        QTest::keyClick(&grid(), Qt::Key_Down);
    }
    find<QDockWidget>(window(), "historyDock").show();
    handleEvents();
    EXPECT_EQ(steps(), (Texts{"(Projekt beim Öffnen)", "Variable geändert: „A“ in „Limonade“",
                              "Variable geändert: „B“ in „Limonade“", "Variable geändert: „C“ in „Limonade“"}));
    EXPECT_EQ(list().currentIndex().row(), 3);
    const auto go = [&](int row) {
        list().setCurrentIndex(list().model()->index(row, 0));
        list().setFocus();
        QTest::keyClick(&list(), Qt::Key_Return);
        handleEvents();
    };
    go(1);
    EXPECT_EQ(texts("Variable")[0], "A");
    EXPECT_EQ(list().currentIndex().row(), 1);
    go(0);
    EXPECT_EQ(texts("Variable"), before);
    go(3);
    EXPECT_EQ(texts("Variable")[0], "C");
}

TEST_F(StudioHistory, SpeaksTheLanguageOfTheStudio) {
    showMembers();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    window().chooseLanguage(qt::Wording::english);
    EXPECT_EQ(action("actionUndo").text(), "&Undo: Variable changed: “Neu” in “Limonade”");
    EXPECT_EQ(steps()[0], "(project as it was opened)");
}

TEST_F(StudioHistory, WhatAnotherHasChangedIsNotTakenBack) {
    showMembers();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    execute("UPDATE TrcpRecipeMember SET VarRecipe = 'Fremd' WHERE VarRecipe = 'Neu'");
    const BoxAnswers told;
    undo();
    ASSERT_EQ(told.shown().size(), 1U);
    EXPECT_EQ(told.shown()[0].text,
              "„Neu“ in TrcpRecipeMember wurde inzwischen geändert. Es wurde nichts zurückgenommen.");
    EXPECT_EQ(stored(file, 1)[0], "Fremd");
    window().closeProject();
    EXPECT_FALSE(action("actionUndo").isEnabled());
    EXPECT_EQ(steps(), Texts());
}

TEST_F(StudioHistory, ARefreshOfTheViewKeepsItsPlace) {
    showMembers();
    tree().expand(node("Rezepte/Meyer's Bräu"));
    tree().expand(node("Rezepte/Apfelschorle"));
    click("Rezepte/Limonade");
    grid().setCurrentIndex(grid().model()->index(1, 0));
    refreshView();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Limonade"));
    EXPECT_TRUE(tree().isExpanded(node("Rezepte/Meyer's Bräu")));
    EXPECT_TRUE(tree().isExpanded(node("Rezepte/Apfelschorle")));
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Limonade");
    EXPECT_EQ(grid().currentIndex().row(), 1);
}

TEST_F(StudioHistory, ARefreshByAMacroLeavesTheMacroWhereItGoes) {
    showMembers();
    run("editor.abr.Click('mnuOptionActualize') studio.Click('RCPE0') studio.Click('RCPR2')");
    handleEvents();
    EXPECT_EQ(tree().currentIndex(), node("Rezepte/Apfelschorle"));
    EXPECT_EQ(titleOfEditor(), "HelvixStudio Rezepteditor: Apfelschorle");
}

TEST_F(StudioHistory, ARefreshOfTheViewShowsWhatOthersHaveDone) {
    showMembers();
    execute("DELETE * FROM TrcpRecipe WHERE ID = 1");
    refreshView();
    EXPECT_FALSE(isThere("Rezepte/Limonade"));
    EXPECT_TRUE(node("Rezepte/Apfelschorle").isValid());
}

TEST_F(StudioHistory, InAnOpenCellTheKeyIsTheCells) {
    showMembers();
    edit(0, "Variable", "Neu");
    QTest::keyClick(&grid(), Qt::Key_Down);
    QLineEdit& line = typeInCell(1, "Variable", "Halb");
    QTest::keyClick(&line, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stored(file, 1)[0], "Neu");
    EXPECT_NE(line.text(), "Halb");
    QTest::keyClick(&line, Qt::Key_Escape);
    QTest::keyClick(&grid(), Qt::Key_Escape);
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_Z, Qt::ControlModifier);
    handleEvents();
    EXPECT_NE(stored(file, 1)[0], "Neu");
}

}  // namespace
}  // namespace hx::gui
