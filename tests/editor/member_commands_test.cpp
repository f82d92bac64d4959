#include "command_window.h"
#include "dialogs/fsub_recipe.h"

namespace hx::editor {
namespace {

using automation::Variant;
using dialogs::FSubRecipe;
using forms::message::Answer;

const Texts allMembers = {"1 Tank.Level 0", "1 Tank.Temp 0",  "1 Pump.Speed 0",
                          "1 File.Syrup 2", "1 File.Water 3", "2 Sugar.Mass 0"};

struct DeleteMembers : CommandWindow {
    DeleteMembers() {
        show(mixKey);
        answer(Answer::yes);
    }
    void deleteRows(const Numbers& rows) {
        selectRows(rows);
        click("mnuRecipeMemberDelete");
    }
    static constexpr const char* question = "Wollen Sie wirklich die selektierten Rezeptelemente löschen ?";
};

TEST_F(DeleteMembers, AsksWithNoAsTheDefault) {
    bool busy = false;
    host.script.onMessage = [&](const headless::Message& message) {
        busy = addIn.busyFlag.isSet();
        return message.defaultButton;
    };
    grid().setRow(1);
    deleteRows({0, 2});
    ASSERT_EQ(messages(), (Texts{question}));
    const headless::Message& box = host.record.messages[0];
    EXPECT_EQ(box.style, 260);
    EXPECT_EQ(box.buttons, (std::vector{Answer::yes, Answer::no}));
    EXPECT_EQ(box.defaultButton, Answer::no);
    EXPECT_EQ(box.title, forms::message::defaultTitle);
    EXPECT_TRUE(busy);
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(grid().selectedRows().count(), 2);
    EXPECT_EQ(grid().row(), 1);
    expectAtRest();
}

TEST_F(DeleteMembers, ShowTheHourglassMeanwhile) {
    host.script.onMessage = [this](const headless::Message&) {
        host.record.pointers.clear();
        return Answer::yes;
    };
    deleteRows({0});
    EXPECT_EQ(host.record.pointers, (std::vector{forms::Pointer::hourglass, forms::Pointer::standard}));
}

TEST_F(DeleteMembers, AsksInEnglish) {
    useLanguage(english);
    answer(Answer::no);
    deleteRows({0});
    EXPECT_EQ(messages(), (Texts{"You really want to delete the selected Elements"}));
    EXPECT_EQ(storedMembers(), allMembers);
}

TEST_F(DeleteMembers, AsksNothingWhenTheOptionIsOff) {
    turnQuestionsOff();
    deleteRows({0});
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers().size(), 5U);
}

TEST_F(DeleteMembers, DeletesTheSelectedRowsAndNoOther) {
    deleteRows({2, 0});
    EXPECT_EQ(storedMembers(), (Texts{"1 Tank.Temp 0", "1 File.Syrup 2", "1 File.Water 3", "2 Sugar.Mass 0"}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp"}));
    EXPECT_EQ(grid().selectedRows().count(), 0);
    EXPECT_EQ(messages(), (Texts{question}));
    expectAtRest();
}

TEST_F(DeleteMembers, DeletesSubRecipesOfTheirFolder) {
    show(mixSubRecipes);
    deleteRows({0});
    EXPECT_EQ(shown("ChildID"), (Texts{"Wasser"}));
    EXPECT_EQ(storedMembers().size(), 5U);
    EXPECT_EQ(storedRecipes().size(), 3U);
}

TEST_F(DeleteMembers, KeepsTheCurrentRow) {
    grid().setRow(2);
    deleteRows({0});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Pump.Speed");
}

TEST_F(DeleteMembers, ThenStandsOnTheRowThatFollowed) {
    grid().setRow(0);
    deleteRows({0, 1});
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed"}));
    addMember(mix, "Late");
    addMember(mix, "Later");
    show(mixKey);
    window->refreshMembers();
    grid().setRow(1);
    deleteRows({1});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Later");
}

TEST_F(DeleteMembers, ThenStandsOnTheRowBeforeWhenTheLastIsGone) {
    grid().setRow(2);
    deleteRows({2});
    EXPECT_EQ(grid().text(grid().row(), columnNumber("VarRecipe")), "Tank.Temp");
    deleteRows({0, 1});
    EXPECT_EQ(grid().row(), -1);
    EXPECT_EQ(grid().rowCount(), 0);
    expectAtRest();
}

TEST_F(DeleteMembers, KeepsTheOrderOfTheGrid) {
    grid().headClick(columnNumber("VarRecipe"));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Tank.Level", "Tank.Temp"}));
    deleteRows({1});
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed", "Tank.Temp"}));
    EXPECT_EQ(storedVariable(2), "Tank.Temp");
}

TEST_F(DeleteMembers, WritesAPendingEditFirst) {
    type(1, "Tank.Pressure");
    deleteRows({0});
    EXPECT_EQ(storedMembers()[0], "1 Tank.Pressure 0");
}

TEST_F(DeleteMembers, DropsAnEditThatTheDatabaseRefuses) {
    type(1, "Tank.Pressure");
    refuseNextUpdate(ado::dbErrDuplicate);
    turnQuestionsOff();
    host.script.onMessage = nullptr;
    deleteRows({0});
    EXPECT_EQ(storedMembers()[0], "1 Tank.Temp 0");
    EXPECT_EQ(messages(), (Texts{"-2147217887: Die Eingabe \"Tank.Pressure\" konnte nicht gespeichert werden und wurde "
                                 "verworfen. Refused."}));
    expectNoOldDuplicate();
}

TEST_F(DeleteMembers, PassesOverAMemberThatIsGoneAlready) {
    selectRows({0, 1});
    database.table("TrcpRecipeMember").remove(1);
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Pump.Speed"}));
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteMembers, ThatAreAllGoneAlreadyIsNoError) {
    selectRows({0, 1, 2});
    for (const int member : {1, 2, 3}) database.table("TrcpRecipeMember").remove(member);
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(grid().rowCount(), 0);
    EXPECT_EQ(messages(), (Texts{question}));
}

TEST_F(DeleteMembers, WithoutASelectionBeepsAndAsksNothing) {
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(host.record.beeps, 1);
    window->commands().mnuRecipeMember(2);
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(storedMembers(), allMembers);
}

TEST_F(DeleteMembers, DisablesTheToolAfterwards) {
    deleteRows({0});
    EXPECT_FALSE(window->tbrfunc->button(Variant("Delete")).toolTipText().empty());
    click("mnuRecipeMemberDelete");
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(grid().rowCount(), 2);
}

TEST_F(DeleteMembers, WhatWasDeletedBeforeAnErrorStaysDeleted) {
    turnQuestionsOff();
    faults.arm(2, support::FaultPlan::Kind::remove);
    deleteRows({0, 1, 2});
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeMember");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp", "Pump.Speed"}));
    EXPECT_EQ(storedMembers().size(), 5U);
    expectAtRest();
}

TEST_F(DeleteMembers, ThatCannotBeCommittedIsTakenBack) {
    turnQuestionsOff();
    faults.arm(1, support::FaultPlan::Kind::commit);
    deleteRows({0, 1});
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    expectAtRest();
}

TEST_F(DeleteMembers, TheGridShowsWhatIsStoredWhateverFails) {
    withEachFault(
        [this] {
            show(mixKey);
            selectRows({0, 2});
        },
        [this] { click("mnuRecipeMemberDelete"); },
        [this] {
            window->refreshMembers();
            Texts stored;
            for (const std::string& row : storedMembers()) {
                if (row.starts_with("1 ") && row.ends_with(" 0")) stored.push_back(row.substr(2, row.size() - 4));
            }
            EXPECT_EQ(shown("VarRecipe"), stored);
        });
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Temp"}));
}

TEST_F(DeleteMembers, WithoutADatabaseIsReported) {
    selectRows({0});
    window->MenuSwitcher(mixKey, false);
    window->setDataEnvironment(nullptr);
    window->abr->click("mnuRecipeMemberDelete");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

struct SubRecipes : CommandWindow {
    SubRecipes() { show(mixSubRecipes); }
    void choose(std::int32_t entry, const std::string& variable) {
        inDialog<FSubRecipe>("FSubRecipe", [=, this](FSubRecipe& dialog) {
            EXPECT_FALSE(addIn.busyFlag.isSet());
            dialog.cmbChooseRecipe->setListIndex(entry);
            dialog.txtVarRecipe->setText(variable);
            dialog.cmdOk->click();
        });
    }
    void cancel() {
        inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
            dialog.txtVarRecipe->setText("x");
            dialog.cmdCancel->click();
        });
    }
};

TEST_F(SubRecipes, ANewOneIsStoredAndShownAndTheCursorStays) {
    grid().setRow(1);
    choose(0, "File.Mix");
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(storedMembers().back(), "1 File.Mix 1");
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser", "Mix"}));
    EXPECT_EQ(grid().row(), 1);
    EXPECT_EQ(host.record.modals.at(0).owner, window->handle());
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(SubRecipes, TheFirstOneOfARecipeBecomesCurrent) {
    show("RCPU" + std::to_string(water));
    choose(1, "File.Syrup");
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup"}));
    EXPECT_EQ(grid().row(), 0);
    EXPECT_TRUE(tool("mnuRecipeMemberNewRecipe").enabled());
}

TEST_F(SubRecipes, ACancelledNewOneChangesNothing) {
    grid().setRow(1);
    selectRows({0});
    cancel();
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(grid().row(), 1);
    EXPECT_EQ(grid().selectedRows().count(), 1);
    expectAtRest();
}

TEST_F(SubRecipes, ANewOneWritesAPendingEditFirst) {
    type(0, "File.Other");
    cancel();
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(storedVariable(4), "File.Other");
}

TEST_F(SubRecipes, ANewOneThatCannotBeStoredIsReportedAndTheCursorStays) {
    grid().setRow(0);
    choose(0, "File.Mix");
    faults.arm(1, support::FaultPlan::Kind::insert);
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeMember");
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    expectAtRest();
}

TEST_F(SubRecipes, ANewOneIsStoredOrReportedWhateverFails) {
    choose(0, "File.Mix");
    withEachFault([this] { show(mixSubRecipes); }, [this] { click("mnuRecipeMemberNewRecipe"); },
                  [this] {
                      const auto stored = static_cast<std::int32_t>(storedMembers().size());
                      window->refreshMembers();
                      EXPECT_EQ(grid().rowCount(), stored - 4);
                  });
    EXPECT_EQ(grid().rowCount(), 3);
}

TEST_F(SubRecipes, AnEditedOneIsStoredAndShownAndTheCursorStays) {
    grid().setRow(1);
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        EXPECT_FALSE(addIn.busyFlag.isSet());
        EXPECT_EQ(dialog.cmbChooseRecipe->text(), "Wasser");
        EXPECT_EQ(dialog.txtVarRecipe->text(), "File.Water");
        dialog.cmbChooseRecipe->setListIndex(0);
        dialog.txtVarRecipe->setText("File.Mix");
        dialog.cmdOk->click();
    });
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(storedMembers()[4], "1 File.Mix 1");
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Mix"}));
    EXPECT_EQ(shown("VarRecipe"), (Texts{"File.Syrup", "File.Mix"}));
    EXPECT_EQ(grid().row(), 1);
    EXPECT_EQ(messages(), Texts{});
    expectAtRest();
}

TEST_F(SubRecipes, ANewOneBelongsToTheRecipeThatItWasAskedForWhateverIsShownWhenTheDialogCloses) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        show("RCPU" + std::to_string(water));
        dialog.txtVarRecipe->setText("File.Mix");
        dialog.cmdOk->click();
    });
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(storedMembers().back(), "1 File.Mix 1");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(SubRecipes, AnEditedOneIsTheOneThatWasAskedForAlsoWhenTheRowsAreReadAnewMeanwhile) {
    grid().setRow(1);
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        window->refreshMembers();
        grid().setRow(0);
        dialog.txtVarRecipe->setText("File.Mix");
        dialog.cmdOk->click();
    });
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(storedVariable(4), "File.Syrup");
    EXPECT_EQ(storedVariable(5), "File.Mix");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(SubRecipes, AnEditedOneIsWrittenAlsoWhenAnotherNodeIsShownMeanwhile) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        show(mixKey);
        dialog.txtVarRecipe->setText("File.Mix");
        dialog.cmdOk->click();
    });
    Texts expected = storedMembers();
    std::ranges::replace(expected, "1 File.Syrup 2", "1 File.Mix 2");
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(storedMembers(), expected);
    EXPECT_TRUE(messages().empty());
}

TEST_F(SubRecipes, AnEditedOneFollowsTheOrderOfTheGrid) {
    grid().headClick(columnNumber("VarRecipe"));
    grid().setRow(0);
    choose(1, "File.Zucker");
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"File.Water", "File.Zucker"}));
    EXPECT_EQ(grid().row(), 1);
}

TEST_F(SubRecipes, ACancelledEditChangesNothing) {
    cancel();
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedMembers(), allMembers);
    expectAtRest();
}

TEST_F(SubRecipes, AnEditWritesAPendingEditFirst) {
    type(0, "File.Other");
    inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
        EXPECT_EQ(dialog.txtVarRecipe->text(), "File.Other");
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedVariable(4), "File.Other");
}

TEST_F(SubRecipes, AnEditOfARowThatIsGoneIsReported) {
    database.table("TrcpRecipeMember").remove(4);
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(messages(), (Texts{"Initialisierung Unterrezeptdialog fehlgeschlagen"}));
    EXPECT_TRUE(host.record.modals.empty());
    expectAtRest();
}

TEST_F(SubRecipes, AnEditThatCannotBeStoredIsReportedAndLeavesTheRow) {
    choose(0, "File.Mix");
    faults.arm(1, support::FaultPlan::Kind::update);
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuRecipeMember");
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    EXPECT_EQ(storedMembers(), allMembers);
    expectAtRest();
}

TEST_F(SubRecipes, AnEditIsStoredOrReportedWhateverFails) {
    choose(0, "File.Mix");
    withEachFault([this] { show(mixSubRecipes); }, [this] { click("mnuRecipeMemberEditSubRecipe"); },
                  [this] {
                      window->refreshMembers();
                      const bool stored = storedMembers()[3] == "1 File.Mix 1";
                      EXPECT_EQ(shown("VarRecipe")[0], stored ? "File.Mix" : "File.Syrup");
                  });
    EXPECT_EQ(shown("VarRecipe")[0], "File.Mix");
}

TEST_F(SubRecipes, CommandsByNumberDoNothingForOtherNodes) {
    for (const std::string& key : {std::string("RCPE0"), std::string("RCPE"), mixKey, std::string("VARS1")}) {
        window->setNodeKey(key);
        window->commands().mnuRecipeMember(1);
        window->commands().mnuRecipeMember(3);
    }
    for (const std::string& key : {std::string("RCPE0"), mixSubRecipes, std::string("VARS1")}) {
        window->setNodeKey(key);
        window->commands().mnuRecipeMember(0);
    }
    EXPECT_TRUE(host.record.modals.empty());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(SubRecipes, ANewOneIsNotGivenToARecipeThatIsGone) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(1);
        dialog.txtVarRecipe->setText("File");
        database.table("TrcpRecipe").remove(mix);
        dialog.cmdOk->click();
    });
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(messages(), (Texts{"-2147217885: Das Rezept mit der ID 1 wurde von jemand anderem gelöscht. Nichts wurde "
                                 "gespeichert."}));
    EXPECT_EQ(storedMembers(), allMembers);
    EXPECT_EQ(shownNodes(), nodesOfStoredRecipes());
    EXPECT_EQ(window->nodeKey(), "RCPE0");
    expectAtRest();
}

}  // namespace
}  // namespace hx::editor
