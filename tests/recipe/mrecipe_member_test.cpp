// SPDX-License-Identifier: MIT
#include "mrecipe_member_dialog.h"

namespace hx::recipe {
namespace {

using automation::Error;
using automation::Null;
using Texts = std::vector<std::string>;

TEST_F(MRecipeMember, ASingleRecipeCanBeItsOwnSubRecipe) {
    plant.database.table("TrcpRecipe").remove(syrup);
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        EXPECT_EQ(entries(dialog), (Texts{"Cola=" + std::to_string(cola)}));
        dialog.txtVarRecipe->setText("File.Cola");
        dialog.cmdOk->click();
    });
    EXPECT_TRUE(AddSubRecipeMember(*window));
    EXPECT_EQ(storedRow(member + 1), (std::vector<Variant>{member + 1, cola, "File.Cola", cola}));
}

TEST_F(MRecipeMember, TheListHasEveryRecipeInOrderAndTheFirstIsChosen) {
    lookAt([this](FSubRecipe& dialog) {
        EXPECT_EQ(entries(dialog), (Texts{"Cola=" + std::to_string(cola), "Sirup=" + std::to_string(syrup)}));
        EXPECT_EQ(dialog.cmbChooseRecipe->listIndex(), 0);
        EXPECT_EQ(dialog.txtVarRecipe->text(), "");
    });
    EXPECT_FALSE(AddSubRecipeMember(*window));
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MRecipeMember, TheListIsFilledAnewEachTime) {
    FSubRecipe dialog(host.services(), window->texts(), window->help());
    FillSubRecipeList(*window, dialog);
    FillSubRecipeList(*window, dialog);
    EXPECT_EQ(dialog.cmbChooseRecipe->listCount(), 2);
}

TEST_F(MRecipeMember, TheDialogLearnsWhetherTheReceivingRecipeSavesItsSubRecipes) {
    FSubRecipe dialog(host.services(), window->texts(), window->help());
    FillSubRecipeList(*window, dialog);
    EXPECT_FALSE(dialog.parentSavesSubRecipes());
    letParentSave();
    plant.data.rsRecipes->close();
    FillSubRecipeList(*window, dialog);
    EXPECT_TRUE(dialog.parentSavesSubRecipes());
    window->key = "RCPU" + std::to_string(syrup);
    FillSubRecipeList(*window, dialog);
    EXPECT_FALSE(dialog.parentSavesSubRecipes());
    window->key = "RCPU999";
    FillSubRecipeList(*window, dialog);
    EXPECT_FALSE(dialog.parentSavesSubRecipes());
}

TEST_F(MRecipeMember, WithoutRecipesThereIsNothingToChoose) {
    plant.database.table("TrcpRecipe").remove(cola);
    plant.database.table("TrcpRecipe").remove(syrup);
    inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
        EXPECT_EQ(dialog.cmbChooseRecipe->listCount(), 0);
        EXPECT_EQ(dialog.cmbChooseRecipe->listIndex(), -1);
        EXPECT_FALSE(dialog.parentSavesSubRecipes());
        dialog.txtVarRecipe->setText("File");
        dialog.cmdOk->click();
    });
    EXPECT_FALSE(AddSubRecipeMember(*window));
    expectMessage("Es muss ein gültiges Unterrezept gewählt werden");
    EXPECT_EQ(memberCount(), 2U);
}

TEST_F(MRecipeMember, AddingStoresParentVariableAndChildAndClosesTheMembers) {
    choose(1, "File.Other ");
    EXPECT_TRUE(AddSubRecipeMember(*window));
    EXPECT_EQ(memberCount(), 3U);
    EXPECT_EQ(storedRow(member + 1), (std::vector<Variant>{member + 1, cola, "File.Other ", syrup}));
    EXPECT_EQ(members.state(), ado::adStateClosed);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(MRecipeMember, AddingWithoutAVariableIsAllowedWhereTheRecipeSavesItsSubRecipes) {
    letParentSave();
    choose(1, "");
    EXPECT_TRUE(AddSubRecipeMember(*window));
    EXPECT_EQ(storedRow(member + 1), (std::vector<Variant>{member + 1, cola, "", syrup}));
}

TEST_F(MRecipeMember, CancellingLeavesTheMembersUnchanged) {
    inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(1);
        dialog.txtVarRecipe->setText("File");
        dialog.cmdCancel->click();
    });
    members.open();
    const auto before = storedRow(member);
    EXPECT_FALSE(AddSubRecipeMember(*window));
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(memberCount(), 2U);
    EXPECT_EQ(storedRow(member), before);
    EXPECT_EQ(members.state(), ado::adStateOpen);
}

TEST_F(MRecipeMember, ClosingByTheFrameLeavesTheMembersUnchanged) {
    lookAt([](FSubRecipe& dialog) { dialog.txtVarRecipe->setText("File"); });
    const auto before = storedRow(member);
    EXPECT_FALSE(AddSubRecipeMember(*window));
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(memberCount(), 2U);
    EXPECT_EQ(storedRow(member), before);
}

TEST_F(MRecipeMember, AddingGivesDatabaseErrorsToTheCaller) {
    choose(1, "File");
    plant.faults.arm(1, support::FaultPlan::Kind::insert);
    EXPECT_THROW(AddSubRecipeMember(*window), Error);
    EXPECT_EQ(memberCount(), 2U);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(MRecipeMember, TheDialogsBelongToTheEditorWindow) {
    lookAt([this](FSubRecipe& dialog) { EXPECT_EQ(dialog.owner(), window->share()); });
    EXPECT_FALSE(AddSubRecipeMember(*window));
    EXPECT_FALSE(edit());
    ASSERT_EQ(host.record.modals.size(), 2U);
    EXPECT_EQ(host.record.modals[0].owner, window->handle());
    EXPECT_EQ(host.record.modals[1].owner, window->handle());
}

TEST_F(MRecipeMember, EditingShowsTheMembersValues) {
    lookAt([](FSubRecipe& dialog) {
        EXPECT_EQ(dialog.cmbChooseRecipe->text(), "Sirup");
        EXPECT_EQ(dialog.txtVarRecipe->text(), "File.Syrup");
    });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MRecipeMember, EditingShowsNoOtherColumnAsTheVariable) {
    members.setSource("SELECT ID, VarRecipe, ChildID, ParentID FROM TrcpRecipeMember WHERE ParentID = " +
                      std::to_string(cola) + " And ChildID <> 0 ORDER BY ID");
    lookAt([](FSubRecipe& dialog) { EXPECT_EQ(dialog.txtVarRecipe->text(), "File.Syrup"); });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MRecipeMember, EditingShowsNoVariableForNull) {
    storeMember(VarRecipe, Null{});
    lookAt([](FSubRecipe& dialog) { EXPECT_EQ(dialog.txtVarRecipe->text(), ""); });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
}

TEST_F(MRecipeMember, EditingAMemberOfAVanishedRecipeChoosesNone) {
    storeMember(ChildID, 999);
    inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
        EXPECT_EQ(dialog.cmbChooseRecipe->listIndex(), -1);
        dialog.cmdOk->click();
    });
    EXPECT_FALSE(edit());
    expectMessage("Es muss ein gültiges Unterrezept gewählt werden");
    EXPECT_EQ(storedRow(member).at(ChildID), Variant(999));
}

TEST_F(MRecipeMember, EditingKeepsTheMembersNumberAndRecipe) {
    choose(0, "File.Cola");
    EXPECT_TRUE(edit());
    EXPECT_EQ(storedRow(member), (std::vector<Variant>{member, cola, "File.Cola", cola}));
    EXPECT_EQ(memberCount(), 2U);
    EXPECT_EQ(members.state(), ado::adStateOpen);
}

TEST_F(MRecipeMember, CancellingAnEditLeavesTheRowUnchanged) {
    const auto before = storedRow(member);
    inDialog<FSubRecipe>("FSubRecipe", [](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(0);
        dialog.txtVarRecipe->setText("x");
        dialog.cmdCancel->click();
    });
    EXPECT_FALSE(edit());
    EXPECT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(storedRow(member), before);
    EXPECT_EQ(members.editMode(), ado::adEditNone);
}

TEST_F(MRecipeMember, ARowThatCannotBeReadIsNotEdited) {
    OpenAndMoveFirst(members);
    EXPECT_EQ(members.recordCount(), 1);
    plant.faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_FALSE(EditSubRecipeMember(members, *window));
    expectMessage("Initialisierung Unterrezeptdialog fehlgeschlagen");
    EXPECT_TRUE(host.record.modals.empty());
}

TEST_F(MRecipeMember, ARowThatIsNotThereIsNotEdited) {
    members.open();
    members.moveLast();
    members.moveNext();
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    window->resourceTexts.InitResources(host.registry);
    EXPECT_FALSE(EditSubRecipeMember(members, *window));
    expectMessage("Error: Initializing SubRecipe Dalog");
}

TEST_F(MRecipeMember, ValuesThatDoNotFitLeaveTheRowAsItIsStored) {
    const auto before = storedRow(member);
    choose(0, std::string(300, 'x'));
    EXPECT_TRUE(edit());
    expectMessage("Zurückschreiben Unterrezeptdialog fehlgeschlagen");
    EXPECT_EQ(storedRow(member), before);
    EXPECT_EQ(members.editMode(), ado::adEditNone);
    EXPECT_EQ(members.field("VarRecipe").value(), Variant("File.Syrup"));
}

TEST_F(MRecipeMember, ARowThatCouldNotBeWrittenBackIsReadAnewAsAnotherHasLeftItMeanwhile) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        storeMember(VarRecipe, "File.Theirs");
        dialog.txtVarRecipe->setText(std::string(300, 'x'));
        dialog.cmdOk->click();
    });
    EXPECT_TRUE(edit());
    expectMessage("Zurückschreiben Unterrezeptdialog fehlgeschlagen");
    EXPECT_EQ(members.field("VarRecipe").value(), Variant("File.Theirs"));
}

TEST_F(MRecipeMember, ValuesThatDoNotFitAreReportedInEnglishToo) {
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    window->resourceTexts.InitResources(host.registry);
    choose(0, std::string(300, 'x'));
    EXPECT_TRUE(edit());
    expectMessage("Error: Write Back SubRecipe Dalog");
}

TEST_F(MRecipeMember, ARowThatCannotBeStoredReachesTheCaller) {
    const auto before = storedRow(member);
    choose(0, "File");
    plant.faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_THROW(edit(), Error);
    EXPECT_EQ(storedRow(member), before);
    EXPECT_EQ(members.editMode(), ado::adEditNone);
}

}  // namespace
}  // namespace hx::recipe
