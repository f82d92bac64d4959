// SPDX-License-Identifier: MIT
#include "run_sample_macro.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct CopyRecipeMacro : SampleMacroTest {
    CopyRecipeMacro() : SampleMacroTest("copy_recipe.lua") {}

    std::string membersOf(int recipe) {
        return query(file_, "SELECT VarRecipe, ChildID FROM TrcpRecipeMember WHERE ParentID = " +
                                std::to_string(recipe) + " ORDER BY ID");
    }
};

TEST_F(CopyRecipeMacro, CopiesEveryColumnVariableAndSubRecipe) {
    EXPECT_EQ(printed({"cola", "Cola light"}), "copied \"Cola\" to \"Cola light\": 2 variables, 2 sub-recipes\n");
    const std::string columns =
        "SELECT VarRecipeName, VarDescription, FilePath, FileExtension, Enabled, Comment, VarLoad, VarSave, VarRead, "
        "VarWrite, StandardValue, VarSetValue, SaveSubRecipes, SaveChanges, CryptEngine, Options FROM TrcpRecipe "
        "WHERE Name = ";
    EXPECT_EQ(query(file_, columns + "'Cola light'"), query(file_, columns + "'Cola'"));
    EXPECT_EQ(membersOf(4), "A.Level|0,A.Heat|0,Name.File|2,|3");
    EXPECT_EQ(membersOf(4), membersOf(1));
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM TrcpRecipe"), "4");
}

TEST_F(CopyRecipeMacro, CopiesAnAbsoluteRecipeWithoutMembers) {
    EXPECT_EQ(printed({"Fill", "Fill slowly"}), "copied \"Fill\" to \"Fill slowly\": 0 variables, 0 sub-recipes\n");
    EXPECT_EQ(query(file_, "SELECT StandardValue, VarSetValue, Enabled FROM TrcpRecipe WHERE ID = 4"),
              query(file_, "SELECT StandardValue, VarSetValue, Enabled FROM TrcpRecipe WHERE ID = 3"));
}

TEST_F(CopyRecipeMacro, CopiesSubRecipesTooWhenItIsToldTo) {
    EXPECT_EQ(printed({"Cola", "New", "deep"}),
              "copied \"Cola\" to \"New\": 2 variables, 2 sub-recipes\n"
              "copied \"Rinse\" to \"Rinse (copy)\": 1 variables, 1 sub-recipes\n"
              "copied \"Fill\" to \"Fill (copy)\": 0 variables, 0 sub-recipes\n");
    EXPECT_EQ(query(file_, "SELECT ID, Name FROM TrcpRecipe WHERE ID > 3 ORDER BY ID"),
              "4|New,5|Rinse (copy),6|Fill (copy)");
    EXPECT_EQ(membersOf(4), "A.Level|0,A.Heat|0,Name.File|5,|6");
    EXPECT_EQ(membersOf(5), "Pump|0,|6");
    EXPECT_EQ(membersOf(1), "A.Level|0,A.Heat|0,Name.File|2,|3");
}

TEST_F(CopyRecipeMacro, CopiesARecipeThatIncludesItself) {
    change("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 1)");
    printed({"Cola", "New", "deep"});
    EXPECT_EQ(membersOf(6), "Pump|4");
    EXPECT_EQ(membersOf(3), "Pump|1");
}

TEST_F(CopyRecipeMacro, RefusesWhatCannotBeCopied) {
    EXPECT_EQ(refusal({"Nobody", "New"}), "There is no recipe \"Nobody\"");
    EXPECT_EQ(refusal({"Cola", "FILL"}), "The recipe \"FILL\" exists already");
    EXPECT_EQ(refusal({"Cola", " "}), "The new name is empty");
    EXPECT_EQ(refusal({"Cola"}), "Usage: copy_recipe.lua RECIPE NEWNAME [deep]");
    EXPECT_EQ(refusal({"Cola", "New", "deeper"}), "\"deeper\" is no argument; the last one can be \"deep\"");
    EXPECT_EQ(refusal(), "Choose a recipe in the explorer, or give RECIPE and NEWNAME");
    EXPECT_EQ(refusal({"Cola", "Rinse (copy)", "deep"}), "The recipe \"Rinse (copy)\" exists already");
    change("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 77)");
    EXPECT_EQ(refusal({"Fill", "New"}),
              "The recipe \"Fill\" contains a sub-recipe that does not exist (ID 77); delete that member first");
}

}  // namespace

}  // namespace hx::cli
