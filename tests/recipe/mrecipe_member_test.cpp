#include "recipe/mrecipe_member.h"

#include "automation/convert.h"
#include "dialog_window.h"

namespace hx::recipe {
namespace {

using automation::Error;
using automation::Null;
using automation::Variant;
using dialogs::FSubRecipe;
using Texts = std::vector<std::string>;

enum Column : std::size_t { ID, ParentID, VarRecipe, ChildID };
constexpr std::size_t saveSubRecipes = 14;  // of the recipes

struct MRecipeMember : DialogTest {
    MRecipeMember() {
        cola = plant.addRecipe("Cola");
        syrup = plant.addRecipe("Sirup");
        plant.addMember(cola, "Tank.Level");
        member = plant.addMember(cola, "File.Syrup", syrup);
        window->key = "RCPU" + std::to_string(cola);
        members.setSource("SELECT * FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(cola) +
                          " And ChildID <> 0 ORDER BY ID");
    }

    [[nodiscard]] std::size_t memberCount() { return plant.database.table("TrcpRecipeMember").rows().size(); }
    [[nodiscard]] std::vector<Variant> storedRow(std::int32_t id) {
        return *plant.database.table("TrcpRecipeMember").row(id);
    }
    void storeMember(Column column, const Variant& value) {
        const std::vector<ado::ColumnValue> values = {{column, value}};
        plant.database.table("TrcpRecipeMember").update(member, values);
    }
    void letParentSave() {
        const std::vector<ado::ColumnValue> values = {{saveSubRecipes, Variant(true)}};
        plant.database.table("TrcpRecipe").update(cola, values);
    }
    static Texts entries(const FSubRecipe& dialog) {
        Texts texts;
        for (std::int32_t i = 0; i < dialog.cmbChooseRecipe->listCount(); ++i) {
            texts.push_back(dialog.cmbChooseRecipe->list(i) + "=" +
                            std::to_string(dialog.cmbChooseRecipe->itemData(i)));
        }
        return texts;
    }
    void choose(std::int32_t entry, const std::string& variable) {
        inDialog<FSubRecipe>("FSubRecipe", [=](FSubRecipe& dialog) {
            dialog.cmbChooseRecipe->setListIndex(entry);
            dialog.txtVarRecipe->setText(variable);
            dialog.cmdOk->click();
        });
    }
    void lookAt(const std::function<void(FSubRecipe&)>& look) { inDialog<FSubRecipe>("FSubRecipe", look); }
    bool edit() {
        OpenAndMoveFirst(members);
        return EditSubRecipeMember(members, *window);
    }

    ado::Recordset& members = *plant.data.rstabRecipeMembers;
    std::int32_t cola = 0, syrup = 0, member = 0;
};

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

/// The error that an action ends in.
Error errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return {0, "no error"};
}

constexpr const char* recipeGone = " wurde von jemand anderem gelöscht. Nichts wurde gespeichert.";

TEST_F(MRecipeMember, NothingIsAddedToARecipeThatIsGone) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(1);
        dialog.txtVarRecipe->setText("File");
        plant.database.table("TrcpRecipe").remove(cola);
        dialog.cmdOk->click();
    });
    const Error error = errorOf([this] { AddSubRecipeMember(*window); });
    EXPECT_EQ(error.number(), ado::dbErrDeletedRow);
    EXPECT_EQ(error.description(), "Das Rezept mit der ID " + std::to_string(cola) + recipeGone);
    EXPECT_EQ(memberCount(), 2U);
    EXPECT_FALSE(plant.data.CnnRecipes->inTransaction());
}

TEST_F(MRecipeMember, ThatARecipeIsGoneIsToldInEnglishToo) {
    host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    window->resourceTexts.InitResources(host.registry);
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        dialog.txtVarRecipe->setText("File");
        plant.database.table("TrcpRecipe").remove(cola);
        dialog.cmdOk->click();
    });
    EXPECT_EQ(errorOf([this] { AddSubRecipeMember(*window); }).description(),
              "The recipe with the ID " + std::to_string(cola) + " was deleted by another. Nothing was stored.");
}

TEST_F(MRecipeMember, ARecipeThatIsGoneIsNotIncluded) {
    for (const bool added : {true, false}) {
        if (plant.database.table("TrcpRecipe").row(syrup) == nullptr) syrup = plant.addRecipe("Limo");
        inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
            dialog.cmbChooseRecipe->setListIndex(1);
            dialog.txtVarRecipe->setText("File");
            plant.database.table("TrcpRecipe").remove(syrup);
            dialog.cmdOk->click();
        });
        if (!added) storeMember(ChildID, cola);
        const Error error = errorOf([&] { added ? AddSubRecipeMember(*window) : edit(); });
        EXPECT_EQ(error.number(), ado::dbErrDeletedRow);
        EXPECT_EQ(error.description(), "Das Rezept mit der ID " + std::to_string(syrup) + recipeGone);
        EXPECT_EQ(memberCount(), 2U);
        EXPECT_FALSE(plant.data.CnnRecipes->inTransaction());
        plant.data.rsRecipes->close();
    }
    EXPECT_EQ(storedRow(member), (std::vector<Variant>{member, cola, "File.Syrup", cola}));
}

TEST_F(MRecipeMember, AMemberOfARecipeThatIsGoneKeepsItWhenOnlyTheVariableChanges) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        plant.database.table("TrcpRecipe").remove(syrup);
        dialog.txtVarRecipe->setText("File");
        dialog.cmdOk->click();
    });
    EXPECT_TRUE(edit());
    EXPECT_EQ(storedRow(member), (std::vector<Variant>{member, cola, "File", syrup}));
}

TEST_F(MRecipeMember, WhatAnotherHasChangedIsNotOverwritten) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        storeMember(ChildID, cola);
        dialog.txtVarRecipe->setText("mine");
        dialog.cmdOk->click();
    });
    EXPECT_TRUE(edit());
    EXPECT_EQ(storedRow(member), (std::vector<Variant>{member, cola, "mine", cola}));
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        storeMember(ChildID, syrup);
        storeMember(VarRecipe, "theirs");
        dialog.txtVarRecipe->setText("other");
        dialog.cmdOk->click();
    });
    const Error error = errorOf([this] { edit(); });
    EXPECT_EQ(error.number(), ado::dbErrRowChanged);
    EXPECT_EQ(error.description(),
              "Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:"
              "\r\nDateiname: \"other\"; gespeichert ist jetzt \"theirs\"");
    EXPECT_EQ(storedRow(member), (std::vector<Variant>{member, cola, "theirs", syrup}));
    EXPECT_EQ(members.editMode(), ado::adEditNone);
}

TEST_F(MRecipeMember, AConflictNamesTheRecipes) {
    plant.addRecipe("Wasser");
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        storeMember(ChildID, cola);
        dialog.cmbChooseRecipe->setListIndex(2);
        dialog.cmdOk->click();
    });
    const Error error = errorOf([this] { edit(); });
    EXPECT_EQ(error.description(),
              "Die Zeile wurde von jemand anderem geändert. Nichts davon wurde gespeichert:"
              "\r\nUnterrezept: \"Wasser\"; gespeichert ist jetzt \"Cola\"");
}

TEST_F(MRecipeMember, AConflictGivesTheNumberOfARecipeThatIsNotInTheList) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        storeMember(ChildID, 999);
        dialog.cmbChooseRecipe->setListIndex(0);
        dialog.cmdOk->click();
    });
    EXPECT_TRUE(errorOf([this] { edit(); }).description().ends_with("\"Cola\"; gespeichert ist jetzt \"999\""));
}

TEST_F(MRecipeMember, IsStoredInTheTransactionThatHasSeenItsRecipes) {
    using Kind = support::FaultPlan::Kind;
    int stored = 0;
    plant.faults.instead = [&] {
        ++stored;
        EXPECT_TRUE(plant.data.CnnRecipes->inTransaction());
    };
    choose(0, "File");
    plant.faults.armFrom(1, Kind::update);
    EXPECT_TRUE(edit());
    choose(1, "Other");
    plant.faults.armFrom(1, Kind::insert);
    EXPECT_TRUE(AddSubRecipeMember(*window));
    EXPECT_EQ(stored, 2);
    plant.faults.disarm();
}

TEST_F(MRecipeMember, ThatBothRecipesAreGoneIsToldOfTheOneThatReceives) {
    inDialog<FSubRecipe>("FSubRecipe", [this](FSubRecipe& dialog) {
        dialog.cmbChooseRecipe->setListIndex(1);
        dialog.txtVarRecipe->setText("File");
        for (const std::int32_t recipe : {cola, syrup}) plant.database.table("TrcpRecipe").remove(recipe);
        dialog.cmdOk->click();
    });
    EXPECT_EQ(errorOf([this] { AddSubRecipeMember(*window); }).description(),
              "Das Rezept mit der ID " + std::to_string(cola) + recipeGone);
}

}  // namespace
}  // namespace hx::recipe
