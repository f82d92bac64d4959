// SPDX-License-Identifier: MIT
#include "run_sample_macro.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct CreateFamilyMacro : SampleMacroTest {
    CreateFamilyMacro() : SampleMacroTest("create_family.lua") {}

    std::string refusalOf(const std::string& list) {
        text("list.csv", list);
        return refusal({"list.csv"});
    }
};

TEST_F(CreateFamilyMacro, MakesARecipeOfEveryLine) {
    text("recipes.csv",
         "\xEF\xBB\xBFName;Comment;FileExtension;StandardValue;Variables;VarLoad;FilePath\r\n"
         "# the small ones\r\n"
         "\r\n"
         "Limo 0,5 l;süß;rz;1,5;A.Level, Pump;Start;<ProjectDir>\\Limo\r\n"
         "Limo 1,0 l;;;0;;;\n");
    EXPECT_EQ(printed(),
              "created \"Limo 0,5 l\" with 2 variables\ncreated \"Limo 1,0 l\" with 0 variables\n"
              "2 recipes created\n");
    EXPECT_EQ(query(file_,
                    "SELECT ID, Name, Comment, FileExtension, StandardValue, VarLoad, FilePath FROM TrcpRecipe "
                    "WHERE ID > 3 ORDER BY ID"),
              "4|Limo 0,5 l|süß|rz|1.5|Start|<ProjectDir>\\Limo,5|Limo 1,0 l|||0||");
    EXPECT_EQ(query(file_, "SELECT ParentID, VarRecipe, ChildID FROM TrcpRecipeMember WHERE ParentID > 3 ORDER BY ID"),
              "4|A.Level|0,4|Pump|0");
}

TEST_F(CreateFamilyMacro, TakesNamesInPlaceOfAList) {
    EXPECT_EQ(printed({"Tee", " Kaffee "}),
              "created \"Tee\" with 0 variables\ncreated \"Kaffee\" with 0 variables\n2 recipes created\n");
    EXPECT_EQ(query(file_, "SELECT Name FROM TrcpRecipe WHERE ID > 3 ORDER BY ID"), "Tee,Kaffee");
}

TEST_F(CreateFamilyMacro, LeavesTheOtherRecipesAsTheyAre) {
    const std::string before = query(file_, "SELECT * FROM TrcpRecipe WHERE ID <= 3 ORDER BY ID") + members();
    printed({"Tee"});
    EXPECT_EQ(query(file_, "SELECT * FROM TrcpRecipe WHERE ID <= 3 ORDER BY ID") + members(), before);
}

TEST_F(CreateFamilyMacro, NamesWhatIsWrongInAListWithItsLineAndMakesNothing) {
    EXPECT_THAT(refusal({"none.csv"}), HasSubstr("The list cannot be read"));
    EXPECT_THAT(refusal(), HasSubstr("The list cannot be read"));
    EXPECT_EQ(refusalOf("\n# nothing\n"), "The list \"list.csv\" is empty");
    EXPECT_EQ(refusalOf("Name\n"), "The list names no recipe");
    EXPECT_EQ(refusalOf("Comment\nx\n"), "line 1: the column \"Name\" is missing");
    EXPECT_EQ(refusalOf("Name;Colour\nx;red\n"), "line 1: there is no column \"Colour\"");
    EXPECT_EQ(refusalOf("Name;Name\nx;y\n"), "line 1: the column \"Name\" stands there twice");
    EXPECT_EQ(refusalOf("Name;Comment\nTee\n"), "line 2: 2 fields are expected, 1 found");
    EXPECT_EQ(refusalOf("Name;Comment\nTee;a;b\n"), "line 2: 2 fields are expected, 3 found");
    EXPECT_EQ(refusalOf("Name;Comment\n;a\n"), "line 2: the name is empty");
    EXPECT_EQ(refusalOf("Name\nTee\n\ntee\n"), "line 4: the recipe \"tee\" exists already, in line 2");
    EXPECT_EQ(refusalOf("Name\nCOLA\n"), "line 2: the recipe \"COLA\" exists already, in the project");
    EXPECT_EQ(refusalOf("Name;FileExtension\nTee;abc\n"),
              "line 2: the FileExtension \"abc\" is longer than two characters");
    EXPECT_EQ(refusalOf("Name;StandardValue\nTee;much\n"), "line 2: the StandardValue \"much\" is not a number");
    EXPECT_EQ(refusalOf("Name;Variables\nTee;A.Level, Nobody\n"),
              "line 2: the variable \"Nobody\" is not in the variable list");
    EXPECT_EQ(refusalOf("Name;Variables\nTee;Pump,pump\n"), "line 2: the variable \"pump\" stands there twice");
    EXPECT_EQ(refusalOf("Name;VarLoad\nTee;Nobody\n"),
              "line 2: the variable \"Nobody\" (VarLoad) is not in the variable list");
    EXPECT_EQ(refusalOf("Name\n\xFF\n"), "line 2: the text is not UTF-8");
    EXPECT_EQ(refusal({"list.csv", "Tee"}), "Give one list, or names of recipes");
    EXPECT_EQ(refusal({"Tee", "Tee"}), "argument 2: the recipe \"Tee\" exists already, in argument 1");
    EXPECT_EQ(refusal({""}), "argument 1: the name is empty");
}

TEST_F(CreateFamilyMacro, ReadsNoListOutsideTheProjectsFolder) {
    EXPECT_THAT(refusal({"../list.csv"}), HasSubstr("is not in the folder"));
}

}  // namespace

}  // namespace hx::cli
