// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <algorithm>

#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

class GridEditing : public GridFixture {
  protected:
    /// Opens the editor of a cell and replaces its text.
    void startTyping(int row, const char* field, const QString& text) {
        click(row, field);
        press(Qt::Key_F2);
        ASSERT_NE(editor(), nullptr);
        editor()->selectAll();
        type(*editor(), text);
    }
};

TEST_F(GridEditing, ACommandThatSettlesTheGridGetsWhatIsBeingTyped) {
    show(3);
    startTyping(1, "VarRecipe", "neu");
    std::string seen;
    grid().keyDownEvent.connect([&](forms::KeyEvent& key) {
        if (key.code != forms::key::f9) return;
        grid().settle();
        seen = variable(1);
        key.swallow();
    });
    press(Qt::Key_F9);
    EXPECT_EQ(seen, "neu");
    EXPECT_EQ(editor(), nullptr);
    EXPECT_FALSE(grid().editorOpen());
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_TRUE(table().hasFocus());
}

TEST_F(GridEditing, ACellTakesNoMoreThanItsColumnHolds) {
    show(3);
    const int longest = form->rows()->field("VarRecipe").definedSize();
    ASSERT_EQ(longest, 255);
    startTyping(1, "VarRecipe", "ab");
    editor()->setCursorPosition(1);
    editor()->insert(QString(300, 'x'));
    const QString full = "a" + QString(longest - 2, 'x') + "b";
    EXPECT_EQ(editor()->text(), full) << "what stands behind the caret stays";
    EXPECT_EQ(editor()->cursorPosition(), longest - 1);
    type(*editor(), "y");
    EXPECT_EQ(editor()->text(), full);
    press(Qt::Key_Return);
    EXPECT_EQ(variable(1), full.toStdString());
}

TEST_F(GridEditing, TypingIntoAFullCellLeavesWhatCanBeUndone) {
    show(3);
    startTyping(1, "VarRecipe", "");
    editor()->insert(QString(254, 'x'));
    type(*editor(), "yz");
    EXPECT_EQ(editor()->text(), QString(254, 'x') + "y");
    editor()->undo();
    EXPECT_EQ(editor()->text(), "Var2");
}

TEST_F(GridEditing, ACharacterOfTwoUnitsCountsOnceAndIsNeverCutInTwo) {
    show(3);
    startTyping(1, "VarRecipe", "");
    const QString bell = QString::fromUtf8("\xF0\x9F\x94\x94");
    editor()->insert(bell.repeated(255));
    EXPECT_EQ(editor()->text(), bell.repeated(255));
    editor()->insert(bell);
    EXPECT_EQ(editor()->text(), bell.repeated(255));
    press(Qt::Key_Backspace);
    editor()->insert("xx");
    EXPECT_EQ(editor()->text(), bell.repeated(254) + "x");
}

TEST_F(GridEditing, ALongerTextThatIsThereAlreadyStaysWhole) {
    show(3);
    const std::string longer(300, 'x');
    const auto& columns = form->table().columns();
    const auto found = std::ranges::find(columns, "VarRecipe", &ado::Column::name);
    const std::vector<ado::ColumnValue> values = {
        {static_cast<std::size_t>(found - columns.begin()), automation::Variant(longer)}};
    form->table().update(2, values);
    form->rows()->resync(ado::adAffectAll);
    click(1, "VarRecipe");
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QString::fromStdString(longer));
    editor()->end(false);
    press(Qt::Key_Backspace);
    EXPECT_EQ(editor()->text().size(), 299);
}

TEST_F(GridEditing, ATabulatorEditsTheNextCellAndSelectsNoRow) {
    show(3);
    startTyping(1, "VarRecipe", "neu");
    press(Qt::Key_Tab);
    EXPECT_EQ(grid().col(), numberOf("ChildID"));
    EXPECT_EQ(grid().selectedRows().count(), 0);
    EXPECT_FALSE(table().selectionModel()->hasSelection());
    ASSERT_NE(editor(), nullptr);
    EXPECT_TRUE(grid().editorOpen());
    EXPECT_EQ(editor()->text(), "0");
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(grid().col(), numberOf("VarRecipe"));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "neu");
}

TEST_F(GridEditing, ATabulatorInTheLastCellEditsTheNextRow) {
    show(3);
    for (const char* hidden : {"ID", "ParentID", "ChildID"}) {
        grid().columns()[static_cast<std::size_t>(numberOf(hidden))]->setVisible(false);
    }
    startTyping(0, "VarRecipe", "neu");
    press(Qt::Key_Tab);
    EXPECT_EQ(stored(1), "neu");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_EQ(grid().selectedRows().count(), 0);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "Var2");
}

TEST_F(GridEditing, ATabulatorOutOfARowThatMustNotBeLeftOpensNoEditor) {
    show(3);
    for (const char* hidden : {"ID", "ParentID", "ChildID"}) {
        grid().columns()[static_cast<std::size_t>(numberOf(hidden))]->setVisible(false);
    }
    grid().leavingRowEvent.connect([](bool& stay) { stay = true; });
    startTyping(0, "VarRecipe", "neu");
    press(Qt::Key_Tab);
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(table().currentIndex().row(), 0);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_FALSE(grid().editorOpen());
    EXPECT_EQ(variable(0), "neu");
    EXPECT_EQ(variable(1), "Var2");
}

TEST_F(GridEditing, AColumnThatIsMovedKeepsWhatIsBeingTyped) {
    show(3);
    startTyping(1, "VarRecipe", "neu");
    QHeaderView& header = *table().horizontalHeader();
    header.moveSection(header.visualIndex(numberOf("VarRecipe")), 0);
    handleEvents();
    EXPECT_EQ(grid().columns()[static_cast<std::size_t>(numberOf("VarRecipe"))]->order(), 0);
    EXPECT_EQ(variable(1), "neu");
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(GridEditing, OtherColumnsGiveUpWhatIsBeingTyped) {
    show(3);
    startTyping(1, "VarRecipe", "neu");
    grid().addColumn("More");
    handleEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(variable(1), "Var2");
    EXPECT_FALSE(grid().dataChanged());
}

}  // namespace
}  // namespace hx::gui
