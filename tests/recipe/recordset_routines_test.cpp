// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "automation/convert.h"
#include "plant.h"
#include "recipe/mhxrcp_hirarch_func.h"

namespace hx::recipe {
namespace {

using automation::Variant;

std::int32_t numberOf(const auto& action) {
    try {
        action();
    } catch (const automation::Error& error) {
        return error.number();
    }
    return 0;
}

struct RecordsetRoutines : testing::Test {
    Plant plant;
    ado::Recordset& recipes = *plant.data.rsRecipes;
};

TEST_F(RecordsetRoutines, OpenAndMoveFirstOpensAndStandsOnTheFirstRow) {
    plant.addRecipe("Cola");
    plant.addRecipe("Tee");
    EXPECT_TRUE(OpenAndMoveFirst(recipes));
    EXPECT_EQ(recipes.state(), ado::adStateOpen);
    EXPECT_EQ(recipes.field("Name").value(), Variant("Cola"));
}

TEST_F(RecordsetRoutines, OpenAndMoveLastOpensAndStandsOnTheLastRow) {
    plant.addRecipe("Cola");
    plant.addRecipe("Tee");
    EXPECT_TRUE(OpenAndMoveLast(recipes));
    EXPECT_EQ(recipes.field("Name").value(), Variant("Tee"));
}

TEST_F(RecordsetRoutines, OpenAndMoveFirstOnAnEmptyTableReturnsFalseAndLeavesThePosition) {
    EXPECT_FALSE(OpenAndMoveFirst(recipes));
    EXPECT_EQ(recipes.state(), ado::adStateOpen);
    EXPECT_TRUE(recipes.eof());
    EXPECT_TRUE(recipes.bof());
    EXPECT_FALSE(OpenAndMoveLast(recipes));
    EXPECT_TRUE(recipes.eof());
}

TEST_F(RecordsetRoutines, AnOpenRecordsetIsNotReopenedButLosesItsFilter) {
    plant.addRecipe("Cola");
    plant.addRecipe("Tee");
    recipes.open();
    recipes.setFilter("Name='Tee'");
    EXPECT_TRUE(OpenAndMoveFirst(recipes));
    EXPECT_EQ(recipes.filter(), "");
    EXPECT_EQ(recipes.recordCount(), 2);
    EXPECT_EQ(recipes.field("Name").value(), Variant("Cola"));
}

TEST_F(RecordsetRoutines, AnErrorWhileOpeningReachesTheCaller) {
    plant.faults.arm(1, support::FaultPlan::Kind::open, {ado::dbErrUnspecified, "The file is locked."});
    EXPECT_EQ(numberOf([&] { OpenAndMoveFirst(recipes); }), ado::dbErrUnspecified);
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
}

TEST_F(RecordsetRoutines, CloseRecordsetOnAClosedRecordsetReturnsTrueAndDoesNothing) {
    EXPECT_TRUE(CloseRecordset(recipes, true));
    EXPECT_TRUE(CloseRecordset(recipes, false));
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
    EXPECT_EQ(recipes.source(), "TrcpRecipe");
}

TEST_F(RecordsetRoutines, CloseRecordsetClosesAnOpenOne) {
    recipes.open();
    EXPECT_TRUE(CloseRecordset(recipes, true));
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
}

struct ClosingAnEdit : RecordsetRoutines {
    void SetUp() override {
        plant.addRecipe("Cola");
        recipes.open();
        recipes.field("Comment").setValue("süß");
    }
    std::string stored() { return automation::toText((*plant.database.table("TrcpRecipe").row(1))[7]); }
};

TEST_F(ClosingAnEdit, SavesThePendingRowWhenAsked) {
    EXPECT_TRUE(CloseRecordset(recipes, true));
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
    EXPECT_EQ(stored(), "süß");
}

TEST_F(ClosingAnEdit, DropsThePendingRowWhenNotAsked) {
    EXPECT_TRUE(CloseRecordset(recipes, false));
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
    EXPECT_EQ(stored(), "");
}

TEST_F(ClosingAnEdit, DropsThePendingRowWhenTheDatabaseRefusesIt) {
    plant.faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_TRUE(CloseRecordset(recipes, true));
    EXPECT_TRUE(plant.faults.fired());
    EXPECT_EQ(recipes.state(), ado::adStateClosed);
    EXPECT_EQ(stored(), "");
}

TEST_F(RecordsetRoutines, RenameRecipeWritesTheNewName) {
    plant.addRecipe("Cola");
    plant.addRecipe("Tee");
    RenameRecipe(recipes, "tee", "Eistee");
    EXPECT_EQ(recipes.field("Name").value(), Variant("Eistee"));
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(2))[1], Variant("Eistee"));
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(1))[1], Variant("Cola"));
}

TEST_F(RecordsetRoutines, RenameRecipeReopensAnOpenRecordset) {
    recipes.open();
    plant.addRecipe("Cola");
    RenameRecipe(recipes, "Cola", "Limo");
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(1))[1], Variant("Limo"));
}

TEST_F(RecordsetRoutines, RenameRecipeFailsWhenTheOldNameDoesNotExist) {
    plant.addRecipe("Cola");
    EXPECT_EQ(numberOf([&] { RenameRecipe(recipes, "Bier", "Wein"); }), ado::adErrNoCurrentRecord);
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(1))[1], Variant("Cola"));
}

TEST_F(RecordsetRoutines, ARecipeNamedWithAnApostropheIsNotFoundByRenameRecipe) {
    plant.addRecipe("Maier's Saft");
    EXPECT_EQ(numberOf([&] { RenameRecipe(recipes, "Maier's Saft", "Saft"); }), ado::adErrInvalidArgument);
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(1))[1], Variant("Maier's Saft"));
}

TEST_F(RecordsetRoutines, RenameRecipeToANameThatExistsIsRefused) {
    plant.addRecipe("Cola");
    plant.addRecipe("Tee");
    EXPECT_EQ(numberOf([&] { RenameRecipe(recipes, "Tee", "COLA"); }), ado::dbErrDuplicate);
    EXPECT_EQ((*plant.database.table("TrcpRecipe").row(2))[1], Variant("Tee"));
}

}  // namespace
}  // namespace hx::recipe
