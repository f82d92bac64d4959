// SPDX-License-Identifier: MIT
#include "node_events.h"

namespace hx::addin {
namespace {

using forms::Pointer;

TEST_F(NodeEvents, AClickOnARecipeShowsItsVariables) {
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_TRUE(studio.window().tdbRM->visible());
    EXPECT_TRUE(studio.window().tdbRM->allowUpdate());
    EXPECT_TRUE(visible("mnuRecipeEdit"));
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(NodeEvents, AClickOnTheSubRecipesOfARecipeShowsThem) {
    studio.click("RCPU1");
    EXPECT_EQ(studio.variables(), (Texts{"Mix.File"}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPU1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_TRUE(visible("mnuRecipeMemberNewRecipe"));
}

TEST_F(NodeEvents, AClickOnTheRootHandsTheBarePrefixToTheWindow) {
    studio.click("RCPR1");
    studio.click("RCPE0");
    EXPECT_EQ(studio.window().nodeKey(), "RCPE");
    EXPECT_EQ(studio.variables(), Texts{});
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor");
    EXPECT_FALSE(studio.window().tdbRM->allowUpdate());
    EXPECT_TRUE(visible("mnuRecipeNew"));
}

TEST_F(NodeEvents, AClickShowsTheHourglassWhileItReads) {
    open();
    record.pointers.clear();
    studio.click("RCPR1");
    EXPECT_EQ(record.pointers, (std::vector<Pointer>{Pointer::hourglass, Pointer::standard}));
}

TEST_F(NodeEvents, AClickOnAnotherAddInsNodeOnlySwitchesTheMenus) {
    studio.click("RCPR1");
    record.pointers.clear();
    studio.click("VARS7");
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
    EXPECT_FALSE(visible("mnuRecipeEdit"));
    EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
    EXPECT_TRUE(record.pointers.empty());
}

TEST_F(NodeEvents, AClickShowsTheGridThatAnotherAddInsNodeHadHidden) {
    open();
    for (const char* node : {"RCPE0", "RCPR1", "RCPU1"}) {
        studio.window().SwitchGrids("VARS7");
        ASSERT_FALSE(studio.window().tdbRM->visible());
        studio.click(node);
        EXPECT_TRUE(studio.window().tdbRM->visible()) << node;
    }
}

TEST_F(NodeEvents, AClickWritesAPendingEditOfTheNodeBefore) {
    studio.click("RCPR1");
    studio.window().tdbRM->setText(0, 2, "Tank9.Level");
    studio.click("RCPR2");
    EXPECT_EQ(automation::toText((*studio.database.table("TrcpRecipeMember").row(1))[2]), "Tank9.Level");
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank9.Level", "Tank2.Level"}));
}

TEST_F(NodeEvents, AClickThatTheDatabaseRefusesShowsWhy) {
    open();
    studio.faults.arm(1, support::FaultPlan::Kind::open, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.click("RCPR1");
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: NodeClick|-2147467259: Locked."}));
    EXPECT_EQ(studio.host.screen.pointer(), Pointer::standard);
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
}

TEST_F(NodeEvents, AClickOnARecipeThatIsGoneShowsNoMembers) {
    open();
    studio.database.table("TrcpRecipe").remove(2);
    studio.click("RCPR2");
    EXPECT_EQ(studio.variables(), Texts{});
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(NodeEvents, ADoubleClickBringsTheWindowToTheFront) {
    studio.connect->NodeDblClick(Studio::node("RCPR1"));
    EXPECT_TRUE(record.broughtToFront.empty()) << "there is no window yet";
    open();
    expectShownAndRaised([this] { studio.connect->NodeDblClick(Studio::node("RCPR1")); });
}

TEST_F(NodeEvents, ADoubleClickTellsThatTheWindowCannotBeShown) {
    open();
    studio.window().hide();
    const auto watched = studio.window().changed.subscribe(
        [](std::string_view) { throw automation::Error(automation::errFail, "No display."); });
    studio.connect->NodeDblClick(Studio::node("RCPR1"));
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: NodeDblClick|-2147467259: No display."}));
}

TEST_F(NodeEvents, TheBinMeansTheNodeThatWasClickedLast) {
    studio.click("RCPR1");
    studio.window().tdbRM->setRow(0);
    studio.window().tdbRM->focusEvent.raise(true);
    const forms::ToolButton& bin = studio.window().tbrfunc->button(automation::Variant("Delete"));
    EXPECT_EQ(bin.toolTipText().find("Mix"), std::string::npos) << bin.toolTipText();
    studio.click("RCPR1");
    EXPECT_NE(bin.toolTipText().find("Mix"), std::string::npos) << bin.toolTipText();
}

TEST_F(NodeEvents, AnExpansionOpensTheEditor) {
    studio.connect->NodeExpand(Studio::node("RCPR1"));
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.window().nodeKey(), "RCPE0");
}

TEST_F(NodeEvents, AreIgnoredWhileTheEditorShowsABoxOfItsOwn) {
    studio.click("RCPR1");
    studio.connect->busy() = true;
    studio.click("RCPR2");
    studio.rightClick("RCPR2");
    studio.press("RCPR2", key::f6);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_TRUE(record.popUps.empty());
    studio.connect->busy() = false;
    studio.click("RCPR2");
    EXPECT_EQ(studio.window().nodeKey(), "RCPR2");
}

}  // namespace
}  // namespace hx::addin
