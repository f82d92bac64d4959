// SPDX-License-Identifier: MIT
#include "editor/member_grid_keys.h"
#include "editor_window.h"

namespace hx::editor {
namespace {

namespace key = forms::key;
namespace shift = forms::shift;

struct GridKeys : EditorWindow {
    GridKeys() {
        open();
        show(mixKey);
        noteCommands();
    }
    /// Whether the key was swallowed.
    bool press(std::int16_t code, std::int16_t state = shift::none) {
        forms::KeyEvent event{code, state};
        grid().keyDown(event);
        return event.swallowed();
    }
    void release(std::int16_t code, std::int16_t state) {
        forms::KeyEvent event{code, state};
        grid().keyUp(event);
    }
    [[nodiscard]] std::string currentField() const {
        return grid().columns()[static_cast<std::size_t>(grid().col())]->dataField();
    }
    void showAllColumns() {
        for (const auto& each : grid().columns()) each->setVisible(true);
    }
};

TEST_F(GridKeys, UpAndDownSelectSingleRows) {
    for (const std::int16_t code : {key::up, key::down}) {
        grid().setMultiSelect(forms::MultiSelect::extended);
        EXPECT_FALSE(press(code));
        EXPECT_EQ(grid().multiSelect(), forms::MultiSelect::simple);
    }
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(GridKeys, TheFirstShiftUpOrDownSelectsTheCurrentRowAndGoesNoFurther) {
    for (const std::int16_t code : {key::up, key::down}) {
        grid().setMultiSelect(forms::MultiSelect::simple);
        grid().selectedRows().clear();
        grid().setRow(1);
        EXPECT_TRUE(press(code, shift::shift));
        EXPECT_EQ(grid().multiSelect(), forms::MultiSelect::extended);
        ASSERT_EQ(grid().selectedRows().count(), 1);
        EXPECT_EQ(grid().selectedRows().bookmarks()[0], grid().bookmark());
    }
}

TEST_F(GridKeys, TheNextShiftUpOrDownExtendsTheSelection) {
    press(key::down, shift::shift);
    grid().setRow(1);
    EXPECT_FALSE(press(key::down, shift::shift));
    EXPECT_EQ(grid().multiSelect(), forms::MultiSelect::extended);
    EXPECT_EQ(grid().selectedRows().count(), 2);
    EXPECT_FALSE(press(key::up, shift::shift));
    EXPECT_EQ(grid().selectedRows().count(), 2) << "each row once";
}

TEST_F(GridKeys, ShiftDownWithoutARowSelectsNothing) {
    show("RCPE");
    EXPECT_TRUE(press(key::down, shift::shift));
    EXPECT_EQ(grid().multiSelect(), forms::MultiSelect::extended);
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(GridKeys, ShiftLeftAndRightAreSwallowedWhileRowsAreSelected) {
    EXPECT_FALSE(press(key::left, shift::shift));
    EXPECT_FALSE(press(key::right, shift::shift));
    selectRows({0});
    EXPECT_TRUE(press(key::left, shift::shift));
    EXPECT_TRUE(press(key::right, shift::shift));
}

TEST_F(GridKeys, F8RunsTheNewMemberOfTheNode) {
    EXPECT_TRUE(press(key::f8));
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(0)"}));
    show(mixSubRecipes);
    EXPECT_TRUE(press(key::f8));
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(0)", "mnuRecipeMember(1)"}));
    show("RCPE");
    EXPECT_FALSE(press(key::f8));
    EXPECT_EQ(commands.size(), 2U);
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridKeys, F9ChoosesTheVariableOfARecipesRow) {
    host.script.onItem = [](const std::string&) { return "Pump.State"; };
    grid().setRow(1);
    grid().setCol(0);
    EXPECT_TRUE(press(key::f9));
    EXPECT_EQ(shown("VarRecipe")[1], "Pump.State");
}

TEST_F(GridKeys, F9DoesNothingWithoutARow) {
    for (const std::string& empty : {std::string("RCPR3"), std::string("RCPU3"), std::string("RCPE")}) {
        show(empty);
        ASSERT_EQ(grid().rowCount(), 0);
        EXPECT_FALSE(press(key::f9));
    }
    EXPECT_TRUE(host.record.items.empty());
    EXPECT_EQ(commands, Texts{});
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridKeys, F9IsLeftToOthersUnderTheirNodes) {
    window->setNodeKey("VARS1");
    EXPECT_FALSE(press(key::f9));
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridKeys, ACommandSeesTheMenusAsTheyAreAfterTheTextIsTakenOver) {
    const auto editor = grid().settleEvent.subscribe([this] { selectRows({0}); });
    press(key::del, shift::ctrl);
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(2)"}));
    EXPECT_EQ(window->abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
}

TEST_F(GridKeys, TellWhatFailsUnderTheirName) {
    window->abr->band(automation::Variant("mnuRecipe")).remove("mnuRecipeEdit");
    press(key::f8);
    grid().setHitTester([](double, double) { return forms::GridHit::cell; });
    grid().doubleClick();
    grid().mouseUp({forms::button::right, 0, 10, 10});
    window->abr->menuOpening(tool("mnuRecipeMembers"));
    Texts titles;
    for (const auto& message : host.record.messages) titles.push_back(message.title);
    EXPECT_EQ(titles, (Texts{"tdbRM_KeyDown", "tdbRM_DblClick", "tdbRM_MouseUp", "abr_MenuOpening"}));
}

TEST_F(GridKeys, F9EditsASubRecipeThroughItsTool) {
    show("RCPE");
    show(mixSubRecipes);
    tool("mnuRecipeMemberEditSubRecipe").setEnabled(false);
    EXPECT_TRUE(press(key::f9));
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(3)"})) << "the menus were refreshed first";
    EXPECT_TRUE(host.record.items.empty());
}

TEST_F(GridKeys, ControlDeleteRefreshesTheMenusAndRunsTheDelete) {
    EXPECT_TRUE(press(key::del, shift::ctrl));
    EXPECT_EQ(host.record.beeps, 1) << "nothing is selected: the tool is disabled";
    selectRows({0});
    EXPECT_TRUE(press(key::del, shift::ctrl));
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(2)"}));
    EXPECT_EQ(host.record.beeps, 1);
}

TEST_F(GridKeys, ACommandGetsWhatIsBeingTypedInTheOpenEditor) {
    std::string typed;
    Texts seen;
    const auto editor = grid().settleEvent.subscribe([&] { type(1, typed); });
    host.script.onItem = [&](const std::string& current) {
        seen.push_back(current);
        return "";
    };
    grid().setRow(1);
    grid().setCol(columnNumber("VarRecipe"));
    typed = "A";
    EXPECT_TRUE(press(key::f9));
    typed = "B";
    forms::KeyPress space{key::space};
    grid().keyPress(space);
    EXPECT_EQ(seen, (Texts{"A", "B"}));
    typed = "C";
    EXPECT_TRUE(press(key::f8));
    EXPECT_EQ(shown("VarRecipe")[1], "C");
    selectRows({0});
    typed = "D";
    EXPECT_TRUE(press(key::del, shift::ctrl));
    EXPECT_EQ(shown("VarRecipe")[1], "D");
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(0)", "mnuRecipeMember(2)"}));
}

TEST_F(GridKeys, ItsKeysAreClaimedFromTheWindowsAround) {
    EXPECT_TRUE(grid().claims({key::pageDown, shift::ctrl}));
    EXPECT_FALSE(grid().claims({key::pageDown, shift::none}));
    EXPECT_FALSE(grid().claims({key::c, shift::ctrl}));
}

TEST_F(GridKeys, AltF6IsSwallowedAndGivesTheExplorerTheKeyboard) {
    EXPECT_TRUE(press(key::f6, shift::alt));
    EXPECT_EQ(host.explorer.activations(), 1);
    EXPECT_FALSE(press(key::f6));
    EXPECT_EQ(host.explorer.activations(), 1);
}

TEST_F(GridKeys, AltLeftAndRightAreSwallowed) {
    EXPECT_TRUE(press(key::left, shift::alt));
    EXPECT_TRUE(press(key::right, shift::alt));
}

TEST_F(GridKeys, OtherKeysAndOtherShiftStatesPass) {
    grid().setMultiSelect(forms::MultiSelect::extended);
    EXPECT_FALSE(press(key::del));
    EXPECT_FALSE(press(key::f8, shift::ctrl));
    EXPECT_FALSE(press(key::f9, shift::shift));
    EXPECT_FALSE(press(key::up, shift::ctrl));
    EXPECT_FALSE(press(key::left));
    EXPECT_FALSE(press(key::enter));
    EXPECT_FALSE(press(key::del, static_cast<std::int16_t>(shift::ctrl | shift::shift)));
    EXPECT_EQ(grid().multiSelect(), forms::MultiSelect::extended);
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridKeys, ReleasingShiftLeftOrRightMovesToTheVisibleNeighbour) {
    show(mixSubRecipes);
    grid().setCol(columnNumber("VarRecipe"));
    release(key::right, shift::shift);
    EXPECT_EQ(currentField(), "ChildID");
    release(key::right, shift::shift);
    EXPECT_EQ(currentField(), "ChildID") << "there is none to the right";
    release(key::left, shift::shift);
    EXPECT_EQ(currentField(), "VarRecipe");
    release(key::left, shift::shift);
    EXPECT_EQ(currentField(), "VarRecipe") << "the columns to the left are hidden";
    showAllColumns();
    grid().setCol(1);
    release(key::left, shift::shift);
    EXPECT_EQ(grid().col(), 0);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(GridKeys, ReleasingOtherKeysMovesNowhere) {
    showAllColumns();
    grid().setCol(1);
    release(key::left, shift::none);
    release(key::left, shift::ctrl);
    release(key::up, shift::shift);
    EXPECT_EQ(grid().col(), 1);
}

TEST_F(GridKeys, ReleasingShiftLeftOrRightMovesOutOfAnOpenEditorToo) {
    showAllColumns();
    grid().setCol(2);
    grid().editorReported("Tank.Level", 3);
    release(key::left, shift::shift);
    EXPECT_EQ(grid().col(), 1);
}

TEST_F(GridKeys, TheNeighbourFollowsTheOrderOfTheDisplay) {
    showAllColumns();
    window->inits().WriteAValueToCInits("tdbRMColOrders", automation::Variant(",3,1,0,2"));
    window->bindGrid();
    showAllColumns();
    EXPECT_EQ(neighbourColumn(grid(), 0, true), 3);
    EXPECT_EQ(neighbourColumn(grid(), 3, true), 1);
    EXPECT_EQ(neighbourColumn(grid(), 1, true), 2);
    EXPECT_EQ(neighbourColumn(grid(), 2, true), -1);
    EXPECT_EQ(neighbourColumn(grid(), 2, false), 1);
    EXPECT_EQ(neighbourColumn(grid(), 1, false), 3);
    EXPECT_EQ(neighbourColumn(grid(), 3, false), 0);
    EXPECT_EQ(neighbourColumn(grid(), 0, false), -1);
}

TEST_F(GridKeys, OfNeighboursAtTheSamePlaceTheLaterOneIsTaken) {
    showAllColumns();
    grid().columns()[0]->setOrder(0);
    grid().columns()[1]->setOrder(0);
    grid().columns()[2]->setOrder(2);
    grid().columns()[3]->setOrder(2);
    EXPECT_EQ(neighbourColumn(grid(), 3, true), 1);
    EXPECT_EQ(neighbourColumn(grid(), 0, false), 3);
}

TEST_F(GridKeys, ControlPageUpAndDownGoToTheFirstAndLastVisibleColumn) {
    show(mixSubRecipes);
    grid().setCol(columnNumber("ChildID"));
    EXPECT_TRUE(press(key::pageUp, shift::ctrl));
    EXPECT_EQ(currentField(), "VarRecipe");
    EXPECT_TRUE(press(key::pageDown, shift::ctrl));
    EXPECT_EQ(currentField(), "ChildID");
}

TEST_F(GridKeys, ControlOIsLeftToTheStudio) {
    show(mixSubRecipes);
    EXPECT_FALSE(grid().claims({key::o, shift::ctrl}));
    EXPECT_FALSE(press(key::o, shift::ctrl));
}

TEST_F(GridKeys, AGridWithoutColumnsComesThroughAllKeys) {
    grid().clearColumns();
    for (const std::int16_t code : {key::pageUp, key::pageDown}) EXPECT_TRUE(press(code, shift::ctrl));
    release(key::left, shift::shift);
    forms::KeyPress space{key::space};
    grid().keyPress(space);
    EXPECT_FALSE(space.swallowed());
    EXPECT_EQ(messages(), Texts{});
}

}  // namespace
}  // namespace hx::editor
