#include "command_window.h"
#include "dialogs/frecipe.h"

namespace hx::editor {
namespace {

using automation::Error;
using automation::Variant;
using dialogs::FRecipe;
using forms::message::Answer;

struct NewRecipe : CommandWindow {};

TEST_F(NewRecipe, RecipesInARowAreNumbered) {
    for (int i = 0; i < 3; ++i) click("mnuRecipeNew");
    EXPECT_EQ(storedRecipes(),
              (Texts{"1 Mix", "2 Sirup", "3 Wasser", "4 Neues Rezept", "5 Neues Rezept(2)", "6 Neues Rezept(3)"}));
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(NewRecipe, HasANodeUnderTheRootAndItsSubRecipesUnderThat) {
    click("mnuRecipeNew");
    const auto& tree = host.explorer.tree();
    const auto node = tree.find("RCPR4");
    EXPECT_EQ(tree.key(tree.parent(node)), "RCPE0");
    EXPECT_EQ(tree.caption(node), "Neues Rezept");
    EXPECT_EQ(tree.image(node), "icoRcpRecipe");
    EXPECT_EQ(tree.key(tree.parent(tree.find("RCPU4"))), "RCPR4");
}

TEST_F(NewRecipe, IsAlsoNumberedInEnglishWithItsGermanName) {
    useLanguage(english);
    click("mnuRecipeNew");
    EXPECT_EQ(shownNodes()[6], "RCPR4 Neues Rezept");
    EXPECT_EQ(shownNodes()[7], "RCPU4 Sub Recipes");
}

TEST_F(NewRecipe, TakesTheFirstFreeName) {
    addRecipe("NEUES REZEPT");
    addRecipe("Neues Rezept(3)");
    click("mnuRecipeNew");
    click("mnuRecipeNew");
    const Texts stored = storedRecipes();
    EXPECT_EQ(stored[5], "6 Neues Rezept(2)");
    EXPECT_EQ(stored[6], "7 Neues Rezept(4)");
}

TEST_F(NewRecipe, StartsWithTheDefaultsOfItsTable) {
    click("mnuRecipeNew");
    const auto& row = *database.table("TrcpRecipe").row(4);
    const auto& columns = database.table("TrcpRecipe").columns();
    for (std::size_t column = 2; column < row.size(); ++column) {
        const Variant empty = columns[column].type == ado::adBoolean   ? Variant(false)
                              : columns[column].type == ado::adDouble  ? Variant(0.0)
                              : columns[column].type == ado::adInteger ? Variant(0)
                                                                       : Variant("");
        EXPECT_EQ(row[column], empty) << columns[column].name;
    }
}

TEST_F(NewRecipe, LeavesTheRootShown) {
    click("mnuRecipeNew");
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
}

TEST_F(NewRecipe, IsKnownByNameToTheGridAtOnce) {
    addMember(mix, "File.New", 4);
    show(mixSubRecipes);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser", ""}));
    window->commands().mnuRecipeFunc(0);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser", "Neues Rezept"}));
}

TEST_F(NewRecipe, RefusedNamesAreNotTakenForTheReasonOfALaterError) {
    click("mnuRecipeNew");
    click("mnuRecipeNew");
    expectNoOldDuplicate();
}

TEST_F(NewRecipe, IsThereWithItsNodeOrNotAtAllWhateverFails) {
    withEachFault([] {}, [this] { click("mnuRecipeNew"); },
                  [this] { EXPECT_EQ(shownNodes(), nodesOfStoredRecipes()); });
    EXPECT_EQ(storedRecipes().size(), 4U);
}

TEST_F(NewRecipe, ThatCannotBeStoredIsReportedOnce) {
    faults.arm(1, support::FaultPlan::Kind::insert);
    click("mnuRecipeNew");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
    EXPECT_EQ(storedRecipes().size(), 3U);
    EXPECT_EQ(faults.count(), 1) << "another name would not help";
}

TEST_F(NewRecipe, ThatTheExplorerRefusesIsReported) {
    host.explorer.removeNode("RCPE0");
    click("mnuRecipeNew");
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(storedRecipes().size(), 4U) << "the view can be refreshed";
    expectAtRest();
}

TEST_F(NewRecipe, WorksWithoutAnExplorer) {
    addIn.node = nullptr;
    click("mnuRecipeNew");
    EXPECT_EQ(storedRecipes().size(), 4U);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(NewRecipe, WithoutADatabaseIsReported) {
    window->setDataEnvironment(nullptr);
    click("mnuRecipeNew");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

struct EditRecipe : CommandWindow {
    EditRecipe() { show(mixKey); }
    void edit(const std::function<void(FRecipe&)>& change) {
        inDialog<FRecipe>("FRecipe", [change](FRecipe& dialog) {
            change(dialog);
            dialog.cmdOk->click();
        });
        click("mnuRecipeEdit");
    }
    static void nothing(FRecipe&) {}
};

TEST_F(EditRecipe, ShowsTheRecipeOfTheNodeAndStoresIt) {
    edit([](FRecipe& dialog) {
        EXPECT_EQ(dialog.txtName->text(), "Mix");
        dialog.txtComment->setText("Neu");
    });
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_EQ(storedRows("TrcpRecipe", {1, 7})[0], "Mix Neu");
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(EditRecipe, GivesTheNodeTheCaptionAndTheGridTheNewName) {
    addMember(syrup, "File.Mix", mix);
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"Mix"}));
    show(mixKey);
    window->MakeMyCaption(mixKey, "Mix");
    edit([](FRecipe& dialog) { dialog.txtName->setText("Mischung"); });
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mischung");
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Mischung");
    show("RCPU" + std::to_string(syrup));
    EXPECT_EQ(shown("ChildID"), (Texts{"Mischung"}));
}

TEST_F(EditRecipe, LeavesTheNodeAloneWhenTheNameStays) {
    host.explorer.setNodeProperty(mixKey, host::node_property::caption, Variant("As it was"));
    edit(nothing);
    EXPECT_EQ(shownNodes()[0], "RCPR1 As it was");
}

TEST_F(EditRecipe, TakesAnotherCaseForANewName) {
    edit([](FRecipe& dialog) { dialog.txtName->setText("MIX"); });
    EXPECT_EQ(shownNodes()[0], "RCPR1 MIX");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditRecipe, CancelledChangesNothing) {
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Mischung");
        dialog.cmdCancel->click();
    });
    const Texts before = storedRecipes();
    click("mnuRecipeEdit");
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRecipes(), before);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
}

TEST_F(EditRecipe, KeepsTheWindowBusyWhileTheDialogIsOpen) {
    bool busy = false;
    edit([&](FRecipe&) { busy = addIn.busyFlag.isSet(); });
    EXPECT_TRUE(busy);
    EXPECT_FALSE(addIn.busyFlag.isSet());
}

TEST_F(EditRecipe, OfARecipeThatIsGoneDoesNothing) {
    database.table("TrcpRecipe").remove(mix);
    click("mnuRecipeEdit");
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(EditRecipe, WithoutRecipesDoesNothing) {
    for (const std::int32_t id : {mix, syrup, water}) database.table("TrcpRecipe").remove(id);
    click("mnuRecipeEdit");
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(EditRecipe, ReportsADuplicateNameAndLeavesRecipeAndNodeAsTheyWere) {
    const Texts before = storedRecipes();
    edit([](FRecipe& dialog) { dialog.txtName->setText("sirup"); });
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(messages()[0].substr(0, 13), "-2147217887: ");
    EXPECT_NE(messages()[0].find("sirup"), std::string::npos);
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeFunc");
    EXPECT_EQ(storedRecipes(), before);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    expectAtRest();
    expectNoOldDuplicate();
}

TEST_F(EditRecipe, LeavesAnEditOfTheGridWaiting) {
    type(0, "Tank.Pressure");
    edit([](FRecipe& dialog) { dialog.txtName->setText("Mischung"); });
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(shown("VarRecipe")[0], "Tank.Pressure");
    window->VerifyAdds();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(EditRecipe, NodesAndRecipesAgreeWhateverFails) {
    inDialog<FRecipe>("FRecipe", [](FRecipe& dialog) {
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    withEachFault([this] { show(mixKey); }, [this] { click("mnuRecipeEdit"); },
                  [this] {
                      // A name that was stored but could not be read again is shown with the next refresh.
                      const bool stored = storedRecipes()[0] == "1 Mischung";
                      EXPECT_TRUE(shownNodes() == nodesOfStoredRecipes() || (stored && !messages().empty()));
                  });
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mischung");
}

TEST_F(EditRecipe, SurvivesTheEndOfItsWindow) {
    inDialog<FRecipe>("FRecipe", [this](FRecipe& dialog) {
        window->setDataEnvironment(nullptr);
        data->CnnRecipes->close();
        window->unload(forms::UnloadMode::byCode);
        window.reset();
        dialog.txtName->setText("Mischung");
        dialog.cmdOk->click();
    });
    const auto bar = window->abr;
    bar->click("mnuRecipeEdit");
    EXPECT_EQ(window, nullptr);
    EXPECT_FALSE(messages().empty()) << "the change was not stored";
}

struct DeleteRecipe : CommandWindow {
    DeleteRecipe() {
        show(mixKey);
        addMember(syrup, "File.Mix", mix);
        answer(Answer::yes);
    }
    static constexpr const char* question =
        "Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?";
};

TEST_F(DeleteRecipe, AsksWithNoAsTheDefault) {
    bool busy = false;
    host.script.onMessage = [&](const headless::Message& message) {
        busy = addIn.busyFlag.isSet();
        return message.defaultButton;
    };
    const Texts recipes = storedRecipes(), stored = storedMembers();
    click("mnuRecipeDelete");
    ASSERT_EQ(messages(), (Texts{question}));
    const headless::Message& box = host.record.messages[0];
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
                      EXPECT_EQ(window->nodeKey(), recipeThere ? mixKey : "RCPE0");
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
