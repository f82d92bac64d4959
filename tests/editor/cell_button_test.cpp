// SPDX-License-Identifier: MIT
#include "editor_window.h"
#include "recipe/node_key.h"

namespace hx::editor {
namespace {

struct CellButton : EditorWindow {
    CellButton() {
        open();
        show(mixKey);
    }
    void choose(const std::string& name) {
        host.script.onItem = [this, name](const std::string&) {
            busy = addIn.busyFlag;
            return name;
        };
    }
    void press(std::int32_t row, const std::string& field = "VarRecipe") {
        grid().buttonClick(row, columnNumber(field));
    }
    bool busy = false;
};

TEST_F(CellButton, PutsTheChosenVariableIntoTheCell) {
    choose("Pump.State");
    press(1);
    ASSERT_EQ(host.record.items.size(), 1U);
    EXPECT_EQ(host.record.items[0].current, "Tank.Temp");
    EXPECT_EQ(host.record.items[0].owner, window->handle());
    EXPECT_EQ(shown("VarRecipe")[1], "Pump.State");
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(storedVariable(2), "Tank.Temp") << "written when the row is left";
    EXPECT_TRUE(grid().hasFocus());
    grid().setRow(0);
    EXPECT_EQ(storedVariable(2), "Pump.State");
}

TEST_F(CellButton, SetsTheBusyFlagOnlyWhileTheSelectionIsOpen) {
    choose("Pump.State");
    press(1);
    EXPECT_TRUE(busy);
    EXPECT_FALSE(addIn.busyFlag);
}

TEST_F(CellButton, TrimsTheName) {
    choose("  Pump.State ");
    press(1);
    EXPECT_EQ(shown("VarRecipe")[1], "Pump.State");
}

TEST_F(CellButton, LeavesTheCellAsItIsForBlanksAndForNothing) {
    for (const char* name : {"   ", ""}) {
        choose(name);
        press(1);
        EXPECT_EQ(shown("VarRecipe")[1], "Tank.Temp");
        EXPECT_FALSE(grid().dataChanged());
    }
    EXPECT_EQ(host.record.items.size(), 2U);
}

TEST_F(CellButton, MarksTheRowAsChangedAlsoForTheSameName) {
    choose("Tank.Temp");
    press(1);
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_TRUE(grid().setRow(0));
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
}

TEST_F(CellButton, OfAnotherColumnDoesNothing) {
    choose("Pump.State");
    for (const char* field : {"ID", "ParentID", "ChildID"}) press(1, field);
    EXPECT_TRUE(host.record.items.empty());
}

TEST_F(CellButton, IsPressedBySpaceBehindTheText) {
    choose("Pump.State");
    grid().setRow(1);
    grid().setCol(columnNumber("VarRecipe"));
    forms::KeyPress space{forms::key::space};
    grid().keyPress(space);
    EXPECT_TRUE(space.swallowed());
    EXPECT_EQ(shown("VarRecipe")[1], "Pump.State");
}

TEST_F(CellButton, IsPressedBySpaceOnlyAtTheEndOfAnOpenEditor) {
    grid().setCol(columnNumber("VarRecipe"));
    grid().editorReported("Tänk", 3);
    forms::KeyPress space{forms::key::space};
    grid().keyPress(space);
    EXPECT_FALSE(space.swallowed());
    grid().editorReported("Tänk", 4);
    grid().keyPress(space);
    EXPECT_TRUE(space.swallowed());
    EXPECT_EQ(host.record.items.size(), 1U);
}

TEST_F(CellButton, IsNotPressedByOtherCharactersOrInOtherColumns) {
    grid().setCol(columnNumber("VarRecipe"));
    forms::KeyPress letter{'x'};
    grid().keyPress(letter);
    EXPECT_FALSE(letter.swallowed());
    grid().setCol(columnNumber("ID"));
    forms::KeyPress space{forms::key::space};
    grid().keyPress(space);
    EXPECT_FALSE(space.swallowed());
    EXPECT_TRUE(host.record.items.empty());
}

TEST_F(CellButton, ReportsASelectionThatFails) {
    host.script.onItem = [](const std::string&) -> std::string { throw automation::Error(5, "No variable list"); };
    press(1);
    EXPECT_EQ(messages(), (Texts{"5: No variable list"}));
    EXPECT_EQ(host.record.messages[0].title, "tdbRM_ButtonClick");
    EXPECT_FALSE(addIn.busyFlag);
    EXPECT_FALSE(grid().dataChanged());
}

TEST_F(CellButton, ReportsASelectionThatFailsAtTheSpaceKeyToo) {
    host.script.onItem = [](const std::string&) -> std::string { throw automation::Error(5, "No variable list"); };
    grid().setCol(columnNumber("VarRecipe"));
    forms::KeyPress space{forms::key::space};
    grid().keyPress(space);
    EXPECT_EQ(messages(), (Texts{"5: No variable list"}));
    EXPECT_EQ(host.record.messages[0].title, "tdbRM_KeyPress");
}

TEST_F(CellButton, ServesANewRow) {
    grid().setAddNewMode(true);
    choose("Pump.State");
    press(-1);
    EXPECT_EQ(grid().text(-1, columnNumber("VarRecipe")), "Pump.State");
}

TEST_F(CellButton, AsksNothingWithoutARowOrWhereNothingMayBeEdited) {
    for (const std::string& key : {std::string("RCPE"), recipe::makeKey(recipe::prefixRecipe, water)}) {
        show(key);
        grid().setCol(columnNumber("VarRecipe"));
        forms::KeyPress space{forms::key::space};
        grid().keyPress(space);
    }
    show(mixKey);
    grid().setAllowUpdate(false);
    press(1);
    EXPECT_TRUE(host.record.items.empty());
    EXPECT_EQ(messages(), Texts{});
}

}  // namespace
}  // namespace hx::editor
