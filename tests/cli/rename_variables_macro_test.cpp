// SPDX-License-Identifier: MIT
#include "run_sample_macro.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct RenameVariablesMacro : SampleMacroTest {
    RenameVariablesMacro() : SampleMacroTest("rename_variables.lua") {}

    std::string variablesOf(int recipe) {
        return query(file_, "SELECT VarRecipe FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(recipe) +
                                " AND ChildID = 0 ORDER BY ID");
    }
};

TEST_F(RenameVariablesMacro, ShowsFirstWhatItWouldDo) {
    const std::string before = everything();
    EXPECT_EQ(printed({"^A%.", "B."}),
              "Cola, VarRead: A.Heat -> B.Heat\n"
              "Cola, VarSetValue: A.Level -> B.Level\n"
              "Cola, member: A.Level -> B.Level\n"
              "Cola, member: A.Heat -> B.Heat\n"
              "4 places would be renamed; add \"apply\" to do it\n");
    EXPECT_EQ(everything(), before);
}

TEST_F(RenameVariablesMacro, RenamesMembersAndTheVariablesOfRecipes) {
    EXPECT_THAT(printed({"^A%.", "B.", "apply"}), HasSubstr("4 places renamed\n"));
    EXPECT_EQ(members(), "1|B.Level|0,1|B.Heat|0,1|Name.File|2,1||3,2|Pump|0,2||3");
    EXPECT_EQ(query(file_, "SELECT * FROM TrcpRecipe WHERE ID = 1"),
              "1|Cola|Name.File|Name.Text|<ProjectDir>\\r|rz|True|süß & \"kalt\"|Start|Stop|B.Heat|B.Heat|2.5|B.Level|"
              "True|True|False|2");
}

TEST_F(RenameVariablesMacro, RenamesTheFileNamesOfSubRecipesWhichMayBeTheSame) {
    change("UPDATE TrcpRecipeMember SET VarRecipe = 'Name.Text' WHERE ParentID = 1 AND ChildID = 3");
    EXPECT_THAT(printed({"^Name%.%a+$", "Stop", "apply"}), HasSubstr("Cola, sub-recipe: Name.Text -> Stop\n"));
    EXPECT_EQ(members(), "1|A.Level|0,1|A.Heat|0,1|Stop|2,1|Stop|3,2|Pump|0,2||3");
}

TEST_F(RenameVariablesMacro, UsesWhatThePatternCaptures) {
    change("UPDATE TrcpRecipeMember SET VarRecipe = 'Stop' WHERE ParentID = 1 AND ChildID = 3");
    EXPECT_THAT(printed({"^St(op)$", "Start", "apply"}), HasSubstr("Cola, sub-recipe: Stop -> Start\n"));
    EXPECT_THAT(printed({"^A%.(%a+)$", "B.%1"}), HasSubstr("A.Level -> B.Level\n"));
    EXPECT_THAT(members(), HasSubstr("1|Start|3"));
}

TEST_F(RenameVariablesMacro, RenamesAlongAChainAndInACircle) {
    change(
        "UPDATE TrcpRecipeMember SET VarRecipe = 'V1' WHERE ID = 1;"
        "UPDATE TrcpRecipeMember SET VarRecipe = 'V2' WHERE ID = 2;"
        "INSERT INTO ThxVariable (Name) VALUES ('V1'), ('V2'), ('V3'), ('V11'), ('V111'), ('XY'), ('YX');");
    printed({"^V(1*)2?$", "V1%1", "apply"});
    EXPECT_EQ(variablesOf(1), "V11,V1") << "V1 -> V11, V2 -> V1";
    change(
        "UPDATE TrcpRecipeMember SET VarRecipe = 'XY' WHERE ID = 1;"
        "UPDATE TrcpRecipeMember SET VarRecipe = 'YX' WHERE ID = 2;");
    printed({"^([XY])([XY])$", "%2%1", "apply"});
    EXPECT_EQ(variablesOf(1), "YX,XY");
}

TEST_F(RenameVariablesMacro, DoesNothingWhereTheRuleTouchesNothing) {
    const std::string before = everything();
    EXPECT_EQ(printed({"Nobody", "Pump", "apply"}), "0 places renamed\n");
    EXPECT_EQ(printed(), "0 places would be renamed; add \"apply\" to do it\n");
    EXPECT_EQ(everything(), before);
}

TEST_F(RenameVariablesMacro, RefusesRulesThatWouldDoHarm) {
    EXPECT_EQ(refusal({"Heat", "Level", "apply"}), "The recipe \"Cola\" would have the variable \"A.Level\" twice");
    EXPECT_EQ(refusal({"Heat", "Nobody", "apply"}),
              "\"A.Heat\" would become \"A.Nobody\", which is not in the variable list");
    EXPECT_EQ(refusal({".*", "", "apply"}), "The rule leaves nothing of \"Name.File\"");
    EXPECT_EQ(refusal({"[", "", "apply"}), "The rule \"[\" -> \"\" is not one: malformed pattern (missing ']')");
    EXPECT_THAT(refusal({"Heat", "%2", "apply"}), HasSubstr("is not one: invalid capture index %2"));
}

TEST_F(RenameVariablesMacro, RefusesWrongArguments) {
    EXPECT_EQ(refusal({"Heat"}), "Usage: rename_variables.lua PATTERN REPLACEMENT [apply]");
    EXPECT_EQ(refusal({"Heat", "Level", "apply", "x"}), "Usage: rename_variables.lua PATTERN REPLACEMENT [apply]");
    EXPECT_EQ(refusal({"Heat", "Level", "do"}), "\"do\" is no argument; the last one can be \"apply\"");
    EXPECT_EQ(refusal({"", "Level"}), "The pattern is empty");
}

}  // namespace

}  // namespace hx::cli
