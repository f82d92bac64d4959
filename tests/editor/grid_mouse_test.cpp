// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

namespace button = forms::button;

struct GridMouse : EditorWindow {
    GridMouse() {
        open();
        noteCommands();
        show(mixSubRecipes);
        grid().setHitTester([this](double x, double y) {
            tested = {x, y};
            return hit;
        });
    }
    void rightClick() {
        grid().mouseDown({button::right, 0, 10, 10});
        grid().mouseUp({button::right, 0, 10, 10});
    }
    [[nodiscard]] Texts menuEntries() const {
        Texts names;
        for (const auto& entry : host.record.popUps.back().entries) names.push_back(entry.tool);
        return names;
    }
    forms::GridHit hit = forms::GridHit::cell;
    std::pair<double, double> tested = {-1, -1};
};

TEST_F(GridMouse, ADoubleClickOnACellEditsTheSubRecipe) {
    grid().mouseDown({button::left, 0, 120, 340});
    tool("mnuRecipeMemberEditSubRecipe").setEnabled(false);
    grid().doubleClick();
    EXPECT_EQ(tested, std::make_pair(120.0, 340.0));
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(3)"})) << "the menus were refreshed first";
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridMouse, ADoubleClickOnAVariableBeepsSinceItsToolIsDisabled) {
    show(mixKey);
    grid().doubleClick();
    EXPECT_EQ(tested, std::make_pair(0.0, 0.0)) << "no button was pressed before";
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(commands, Texts{});
}

TEST_F(GridMouse, ADoubleClickElsewhereDoesNothing) {
    show(mixKey);
    for (const forms::GridHit other : {forms::GridHit::nowhere, forms::GridHit::caption, forms::GridHit::recordSelector,
                                       forms::GridHit::columnHeader, forms::GridHit::splitBar}) {
        hit = other;
        grid().doubleClick();
    }
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(GridMouse, TheRightButtonShowsTheMenuOfTheMembers) {
    selectRows({0});
    rightClick();
    ASSERT_EQ(host.record.popUps.size(), 1U);
    EXPECT_EQ(host.record.popUps[0].band, "mnuRecipeMember");
    EXPECT_EQ(menuEntries(),
              (Texts{"mnuRecipeMemberDescriptor", "mnuRecipeMemberNewRecipe", "mnuRecipeMemberEditSubRecipe",
                     "mnuRecipeMemberDelete", "mnuShowEditorSep", "mnuShowEditor"}));
    for (const auto& entry : host.record.popUps[0].entries) EXPECT_TRUE(entry.enabled) << entry.tool;
}

TEST_F(GridMouse, TheMenuOfARecipesMembersOffersVariables) {
    show(mixKey);
    rightClick();
    EXPECT_EQ(menuEntries(), (Texts{"mnuRecipeMemberDescriptor", "mnuRecipeMemberNewVariable", "mnuRecipeMemberDelete",
                                    "mnuShowEditorSep", "mnuShowEditor"}));
    EXPECT_FALSE(host.record.popUps[0].entries[2].enabled) << "no row is selected";
}

TEST_F(GridMouse, TheMenuBarIsAsBeforeAfterTheContextMenu) {
    rightClick();
    EXPECT_EQ(window->abr->mainBand().tools().size(), 3U);
    EXPECT_FALSE(tool("mnuRecipeMemberDescriptor").visible());
}

TEST_F(GridMouse, TheRootHasNoMenuOfMembers) {
    show("RCPE");
    rightClick();
    ASSERT_EQ(host.record.popUps.size(), 1U);
    EXPECT_TRUE(host.record.popUps[0].refused);
}

TEST_F(GridMouse, AChosenEntryIsClicked) {
    host.script.onPopUp = [](forms::Band&) { return "mnuRecipeMemberNewRecipe"; };
    rightClick();
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(1)"}));
}

TEST_F(GridMouse, TheMenuBarIsAsBeforeAfterAMenuThatFailed) {
    host.script.onPopUp = [](forms::Band&) -> std::string { throw automation::Error(7, "No menu."); };
    rightClick();
    EXPECT_EQ(messages(), Texts{"7: No menu."});
    EXPECT_EQ(window->abr->band(automation::Variant("mnuMain")).find("mnuShowEditor"), nullptr);
    EXPECT_FALSE(tool("mnuRecipeMemberDescriptor").visible());
}

TEST_F(GridMouse, ACommandOfTheMenuMayEndTheWindow) {
    host.script.onPopUp = [this](forms::Band&) {
        window.reset();
        return "";
    };
    const auto shown = window->tdbRM;
    shown->mouseUp({button::right, 0, 10, 10});
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(GridMouse, OtherButtonsShowNoMenu) {
    grid().mouseUp({button::left, 0, 10, 10});
    grid().mouseUp({button::middle, 0, 10, 10});
    grid().mouseDown({button::right, 0, 10, 10});
    EXPECT_TRUE(host.record.popUps.empty());
}

TEST_F(GridMouse, TheLeftButtonTakesTheFocusFromAnotherControl) {
    window->abr->focusChanged(true);
    grid().mouseDown({button::left, 0, 10, 10});
    EXPECT_TRUE(grid().hasFocus());
    EXPECT_FALSE(window->abr->hasFocus());
}

TEST_F(GridMouse, TheLeftButtonAsksForNoFocusThatTheGridHas) {
    grid().focusChanged(true);
    int asked = 0;
    const auto watch = grid().focusRequestEvent.subscribe([&] { ++asked; });
    grid().mouseDown({button::left, 0, 10, 10});
    EXPECT_EQ(asked, 0);
}

TEST_F(GridMouse, OtherButtonsTakeNoFocus) {
    window->abr->focusChanged(true);
    grid().mouseDown({button::right, 0, 10, 10});
    EXPECT_FALSE(grid().hasFocus());
}

}  // namespace
}  // namespace hx::editor
