// SPDX-License-Identifier: MIT
#include "mrecipe_member_dialog.h"
#include "support/error_of.h"

namespace hx::recipe {
namespace {

using automation::Error;
using support::errorOf;

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
