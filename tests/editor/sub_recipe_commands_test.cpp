// SPDX-License-Identifier: MIT
#include "command_window.h"
#include "dialogs/fsub_recipe.h"

namespace hx::editor {
namespace {

using dialogs::FSubRecipe;

/// How often a view reads all rows anew.
struct RowsRead {
    explicit RowsRead(forms::Grid& grid) : watch(grid.rowsChanged.subscribe([this] { ++count; })) {}
    int count = 0;
    forms::Subscription watch;
};

struct SubRecipes : CommandWindow {
    SubRecipes() { show(mixSubRecipes); }
    void choose(std::int32_t entry, const std::string& variable) {
        inDialog<FSubRecipe>("FSubRecipe", [=, this](FSubRecipe& dialog) {
            EXPECT_FALSE(addIn.busyFlag);
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

TEST_F(SubRecipes, ANewOneThatCannotBeStoredStaysInItsDialogForAnotherTry) {
    for (const auto kind :
         {support::FaultPlan::Kind::begin, support::FaultPlan::Kind::insert, support::FaultPlan::Kind::commit}) {
        host.record.messages.clear();
        const Texts before = storedMembers();
        const std::string typed = "File." + std::to_string(static_cast<int>(kind));
        inDialog<FSubRecipe>("FSubRecipe", [&](FSubRecipe& dialog) {
            dialog.txtVarRecipe->setText(typed);
            faults.arm(1, kind);
            dialog.cmdOk->click();
            EXPECT_TRUE(dialog.visible());
            EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
            EXPECT_EQ(dialog.txtVarRecipe->text(), typed);
            EXPECT_EQ(storedMembers(), before);
            dialog.cmdOk->click();
        });
        click("mnuRecipeMemberNewRecipe");
        EXPECT_EQ(messages().size(), 1U);
        EXPECT_EQ(storedMembers().size(), before.size() + 1);
        EXPECT_EQ(shown("VarRecipe").back(), typed);
        expectAtRest();
    }
}

TEST_F(SubRecipes, OneThatIsGivenUpAfterARefusalLeavesTheGridAsItWas) {
    inDialog<FSubRecipe>("FSubRecipe", [&](FSubRecipe& dialog) {
        dialog.txtVarRecipe->setText("File.Mix");
        faults.arm(1, support::FaultPlan::Kind::insert);
        dialog.cmdOk->click();
        dialog.cmdCancel->click();
    });
    grid().setRow(0);
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(shown("ChildID"), (Texts{"Sirup", "Wasser"}));
    EXPECT_EQ(storedMembers(), allMembers);
    expectAtRest();
}

TEST_F(SubRecipes, AnEditThatCannotBeStoredStaysInItsDialogForAnotherTry) {
    for (const auto kind :
         {support::FaultPlan::Kind::begin, support::FaultPlan::Kind::update, support::FaultPlan::Kind::commit}) {
        host.record.messages.clear();
        const std::string typed = "File." + std::to_string(static_cast<int>(kind));
        inDialog<FSubRecipe>("FSubRecipe", [&](FSubRecipe& dialog) {
            dialog.txtVarRecipe->setText(typed);
            faults.arm(1, kind);
            dialog.cmdOk->click();
            EXPECT_TRUE(dialog.visible());
            EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
            dialog.cmdOk->click();
        });
        click("mnuRecipeMemberEditSubRecipe");
        EXPECT_EQ(messages().size(), 1U);
        EXPECT_EQ(storedVariable(4), typed);
        EXPECT_EQ(shown("VarRecipe").front(), typed);
        expectAtRest();
    }
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
        EXPECT_FALSE(addIn.busyFlag);
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

TEST_F(SubRecipes, LetNoOtherCommandRunWhileTheirDialogIsOpen) {
    for (const char* command : {"mnuRecipeMemberNewRecipe", "mnuRecipeMemberEditSubRecipe"}) {
        host.record.beeps = 0;
        inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
            window->commands().mnuRecipeFunc(0);
            EXPECT_EQ(host.record.beeps, 1);
            dialog.cmdCancel->click();
        });
        click(command);
    }
    EXPECT_EQ(storedRecipes().size(), 3U);
}

TEST_F(SubRecipes, ACancelledDialogReadsNoRowsAnew) {
    const RowsRead rows(grid());
    cancel();
    for (const char* command : {"mnuRecipeMemberNewRecipe", "mnuRecipeMemberEditSubRecipe"}) click(command);
    EXPECT_EQ(host.record.modals.size(), 2U);
    EXPECT_EQ(rows.count, 0);
}

TEST_F(SubRecipes, AnEditWithATextThatDoesNotFitIsToldAndNotStored) {
    choose(0, std::string(300, 'x'));
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(messages(), (Texts{"Zurückschreiben Unterrezeptdialog fehlgeschlagen"}));
    EXPECT_EQ(storedMembers(), allMembers);
    expectAtRest();
}

TEST_F(SubRecipes, AnEditThatAnotherWasFasterWithShowsTheirs) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        const std::vector<ado::ColumnValue> theirs = {{2, automation::Variant("File.Theirs")}};
        database.table("TrcpRecipeMember").update(4, theirs);
        addMember(mix, "File.Late", water);
        dialog.txtVarRecipe->setText("File.Mine");
        dialog.cmdOk->click();
    });
    const RowsRead rows(grid());
    click("mnuRecipeMemberEditSubRecipe");
    EXPECT_EQ(rows.count, 1);
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"File.Theirs", "File.Water", "File.Late"}));
}

TEST_F(SubRecipes, ARefusedOneShowsWhatAnotherHasStoredMeanwhile) {
    for (const char* command : {"mnuRecipeMemberNewRecipe", "mnuRecipeMemberEditSubRecipe"}) {
        inDialog<FSubRecipe>("FSubRecipe", [&](FSubRecipe& dialog) {
            addMember(mix, command, water);
            dialog.txtVarRecipe->setText("File.Mine");
            faults.arm(1, support::FaultPlan::Kind::begin);
            dialog.cmdOk->click();
            dialog.cmdCancel->click();
        });
        click(command);
        EXPECT_EQ(shown("VarRecipe").back(), command);
    }
}

TEST_F(SubRecipes, ANewOneOfAWindowThatHasLostItsDatabaseIsRefusedOnce) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        window->setDataEnvironment(nullptr);
        dialog.txtVarRecipe->setText("File.Mine");
        dialog.cmdOk->click();
        dialog.cmdCancel->click();
    });
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The editor has no database now"}));
}

TEST_F(SubRecipes, AnErrorThatIsNoConflictLeavesTheNodes) {
    database.table("TrcpRecipe").remove(mix);
    faults.arm(1, support::FaultPlan::Kind::open);
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk cannot be written."}));
    EXPECT_EQ(window->nodeKey(), mixSubRecipes);
    EXPECT_EQ(shownNodes()[0], "RCPR1 Mix");
}

TEST_F(SubRecipes, ANewOneOfARecipeThatIsGoneLeavesTheNodeOfItsOwn) {
    host.explorer.setNodeProperty(mixKey, host::node_property::caption, automation::Variant("As it was"));
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(1);
        dialog.txtVarRecipe->setText("File");
        database.table("TrcpRecipe").remove(syrup);
        addMember(mix, "File.Late", water);
        dialog.cmdOk->click();
    });
    const RowsRead rows(grid());
    click("mnuRecipeMemberNewRecipe");
    EXPECT_EQ(rows.count, 1);
    EXPECT_EQ(shown("VarRecipe").back(), "File.Late") << "what another has stored meanwhile";
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_TRUE(messages()[0].starts_with("-2147217885: ")) << messages()[0];
    EXPECT_EQ(shownNodes()[0], "RCPR1 As it was");
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
