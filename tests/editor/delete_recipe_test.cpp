// SPDX-License-Identifier: MIT
#include "command_window.h"

namespace hx::editor {
namespace {

using automation::Variant;
using forms::message::Answer;

struct DeleteRecipe : CommandWindow {
    DeleteRecipe() {
        show(mixKey);
        addMember(syrup, "File.Mix", mix);
        answer(Answer::yes);
    }
    static constexpr const char* question =
        "Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?";
};

TEST_F(DeleteRecipe, ShowsTheHourglassMeanwhile) {
    int removed = 0;
    faults.instead = [&] {
        ++removed;
        EXPECT_EQ(host.screen.pointer(), forms::Pointer::hourglass);
    };
    faults.armFrom(1, support::FaultPlan::Kind::remove);
    click("mnuRecipeDelete");
    faults.disarm();
    EXPECT_GT(removed, 0);
    expectAtRest();
}

TEST_F(DeleteRecipe, AsksWithNoAsTheDefault) {
    bool busy = false;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        busy = addIn.busyFlag;
        return message.defaultButton;
    };
    const Texts recipes = storedRecipes(), stored = storedMembers();
    click("mnuRecipeDelete");
    ASSERT_EQ(messages(), (Texts{question}));
    const forms::ShownMessage& box = host.record.messages[0];
    EXPECT_EQ(box.style, 260);
    EXPECT_EQ(box.buttons, (std::vector{Answer::yes, Answer::no}));
    EXPECT_EQ(box.defaultButton, Answer::no);
    EXPECT_EQ(box.title, forms::message::defaultTitle);
    EXPECT_TRUE(busy);
    EXPECT_EQ(storedRecipes(), recipes);
    EXPECT_EQ(storedMembers(), stored);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(window->nodeKey(), mixKey);
    expectAtRest();
}

TEST_F(DeleteRecipe, AsksInEnglish) {
    useLanguage(english);
    answer(Answer::no);
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), (Texts{"You really want to delete this Recipe and all included Elements ?"}));
    EXPECT_EQ(storedRecipes().size(), 3U);
}

TEST_F(DeleteRecipe, DeletesTheRecipeAllItsMembersAndItsNodes) {
    click("mnuRecipeDelete");
    EXPECT_EQ(storedRecipes(), (Texts{"2 Sirup", "3 Wasser"}));
    EXPECT_EQ(storedMembers(), (Texts{"2 Sugar.Mass 0", "2 File.Mix 1"}));
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(messages(), (Texts{question}));
    expectAtRest();
}

TEST_F(DeleteRecipe, AsksNothingWhenTheOptionIsOff) {
    turnQuestionsOff();
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedRecipes().size(), 2U);
}

TEST_F(DeleteRecipe, AsksWhenTheOptionIsDamaged) {
    window->inits().WriteAValueToCInits("RequestOnDelete", Variant("perhaps"));
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteRecipe, LeavesTheMembersOfOthersThatIncludeItWithoutAName) {
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"Mix"}));
    show(mixKey);
    click("mnuRecipeDelete");
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"File.Mix"}));
    EXPECT_EQ(shown("ChildID"), (Texts{""}));
}

TEST_F(DeleteRecipe, ThenShowsTheRootWithoutRows) {
    window->MakeMyCaption(mixKey, "Mix");
    click("mnuRecipeDelete");
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_TRUE(grid().visible());
    EXPECT_FALSE(grid().allowUpdate());
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor");
    EXPECT_TRUE(tool("mnuRecipeNew").enabled());
    EXPECT_FALSE(tool("mnuRecipeDelete").enabled());
    EXPECT_FALSE(tool("mnuRecipeMembers").enabled());
}

TEST_F(DeleteRecipe, ThenShowsWhatTheExplorerHasChosenInstead) {
    host.explorer.select("RCPR" + std::to_string(syrup));
    click("mnuRecipeDelete");
    EXPECT_EQ(window->nodeKey(), "RCPR" + std::to_string(syrup));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Sugar.Mass"}));
    EXPECT_TRUE(grid().allowUpdate());
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Sirup");
    EXPECT_TRUE(tool("mnuRecipeDelete").enabled());
}

TEST_F(DeleteRecipe, ThenShowsTheRootWhenTheExplorerHasChosenANodeOfAnother) {
    host.explorer.addNode({.caption = "Variablen", .key = "VARS0"});
    host.explorer.select("VARS0");
    click("mnuRecipeDelete");
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteRecipe, DropsAnEditOfTheGridBeforeItAsks) {
    type(0, "Tank.Pressure");
    answer(Answer::no);
    click("mnuRecipeDelete");
    EXPECT_FALSE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[0], "Tank.Level");
    EXPECT_EQ(storedVariable(1), "Tank.Level");
}

TEST_F(DeleteRecipe, DropsANewRowOfTheGrid) {
    grid().setAddNewMode(true);
    click("mnuRecipeDelete");
    EXPECT_EQ(storedMembers().size(), 2U);
    EXPECT_FALSE(grid().addNewMode());
    expectAtRest();
}

TEST_F(DeleteRecipe, LeavesANewRowOfTheGridWaitingUntilTheUserSaysYes) {
    grid().setAddNewMode(true);
    answer(Answer::no);
    click("mnuRecipeDelete");
    EXPECT_TRUE(grid().addNewMode());
}

TEST_F(DeleteRecipe, WorksWithoutAnExplorer) {
    addIn.node = nullptr;
    click("mnuRecipeDelete");
    EXPECT_EQ(storedRecipes().size(), 2U);
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteRecipe, ThatIsGoneAlreadyDoesNothing) {
    database.table("TrcpRecipe").remove(mix);
    const Texts stored = storedMembers();
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), stored);
    expectAtRest();
}

TEST_F(DeleteRecipe, WithoutMembersOrNodeIsNoError) {
    show("RCPR" + std::to_string(water));
    click("mnuRecipeDelete");
    EXPECT_EQ(storedRecipes(), (Texts{"1 Mix", "2 Sirup"}));
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteRecipe, NodesAndRecipesAgreeWhateverFails) {
    withEachFault([this] { show(mixKey); }, [this] { click("mnuRecipeDelete"); },
                  [this] {
                      EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
                      const bool recipeThere = storedRecipes().size() == 3;
                      EXPECT_TRUE(!recipeThere || storedMembers().size() == 7U);
                      const bool rootRead = window->nodeKey() == "RCPE0";
                      EXPECT_EQ(window->nodeKey(), recipeThere ? mixKey : rootRead ? "RCPE0" : "");
                      for (const std::string& text : messages()) {
                          EXPECT_TRUE(text == question || text == "-2147467259: The disk cannot be written.") << text;
                      }
                  });
    EXPECT_EQ(storedMembers().size(), 2U);
}

TEST_F(DeleteRecipe, WhatWasDeletedBeforeAnErrorStaysDeleted) {
    turnQuestionsOff();
    faults.arm(2, support::FaultPlan::Kind::open);  // the recipes, then the members
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(storedRecipes(), (Texts{"2 Sirup", "3 Wasser"}));
    EXPECT_EQ(storedMembers().size(), 7U);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
}

TEST_F(DeleteRecipe, ThatCannotBeCommittedIsTakenBack) {
    turnQuestionsOff();
    faults.arm(1, support::FaultPlan::Kind::commit);
    click("mnuRecipeDelete");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(storedRecipes().size(), 3U);
    EXPECT_EQ(storedMembers().size(), 7U);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(window->nodeKey(), mixKey);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    expectAtRest();
}

TEST_F(DeleteRecipe, ByNumberDoesNothingForANodeThatIsNoRecipe) {
    for (const char* key : {"RCPE", "RCPE0", "RCPU1", "VARS1", ""}) {
        window->setNodeKey(key);
        window->commands().mnuRecipeFunc(1);
        window->commands().mnuRecipeFunc(2);
    }
    EXPECT_EQ(storedRecipes().size(), 3U);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_TRUE(host.record.modals.empty());
}

}  // namespace
}  // namespace hx::editor
