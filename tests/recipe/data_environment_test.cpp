// SPDX-License-Identifier: MIT
#include "recipe/data_environment.h"

#include <gtest/gtest.h>

#include "plant.h"

namespace hx::recipe {
namespace {

TEST(DataEnvironment, StartsWithTheConnectionAndAllRecordsetsClosed) {
    support::MemoryProvider provider;
    const DataEnvironment data(provider);
    EXPECT_EQ(data.CnnRecipes->state(), ado::adStateClosed);
    ASSERT_EQ(data.recordsets().size(), 3u);
    for (const auto& recordset : data.recordsets()) {
        EXPECT_EQ(recordset->state(), ado::adStateClosed);
        EXPECT_EQ(recordset->activeConnection(), data.CnnRecipes);
    }
}

TEST(DataEnvironment, PresetsEachRecordsetWithItsSource) {
    support::MemoryProvider provider;
    const DataEnvironment data(provider);
    EXPECT_EQ(data.rsRecipes->source(), "TrcpRecipe");
    EXPECT_EQ(data.rsRecipeMembers->source(), "TrcpRecipeMember");
    EXPECT_EQ(data.rstabRecipeMembers->source(), "SELECT * FROM TrcpRecipeMember");
}

TEST(DataEnvironment, OpensEachRecordsetOnItsTable) {
    Plant plant;
    plant.addRecipe("Cola");
    plant.addMember(1, "Tank1.Level");
    plant.addMember(1, "Tank2.Level");
    for (const auto& recordset : plant.data.recordsets()) recordset->open();
    EXPECT_EQ(plant.data.rsRecipes->recordCount(), 1);
    EXPECT_EQ(plant.data.rsRecipeMembers->recordCount(), 2);
    EXPECT_EQ(plant.data.rstabRecipeMembers->recordCount(), 2);
    EXPECT_EQ(plant.data.rstabRecipeMembers->field("VarRecipe").value(), automation::Variant("Tank1.Level"));
}

TEST(DataEnvironment, FindsARecordsetByItsDataMember) {
    support::MemoryProvider provider;
    const DataEnvironment data(provider);
    EXPECT_EQ(data.recordset("Recipes"), data.rsRecipes);
    EXPECT_EQ(data.recordset("RecipeMembers"), data.rsRecipeMembers);
    EXPECT_EQ(data.recordset("tabrecipemembers"), data.rstabRecipeMembers);
    EXPECT_EQ(data.recordset("rsRecipes"), nullptr);
    EXPECT_EQ(data.recordset(""), nullptr);
}

}  // namespace
}  // namespace hx::recipe
