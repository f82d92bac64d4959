// SPDX-License-Identifier: MIT
#include "run_sample_macro.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

struct CheckProjectMacro : SampleMacroTest {
    CheckProjectMacro() : SampleMacroTest("check_project.lua") {
        change("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 0)");
    }

    /// Its findings after this change; the exit status tells of them, and nothing is changed.
    std::string findings(const std::string& sql, const std::vector<std::string>& arguments = {}) {
        change(sql);
        const std::string before = everything();
        const Result result = run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "");
        EXPECT_EQ(everything(), before);
        return result.results;
    }
};

TEST_F(CheckProjectMacro, FindsNothingInASoundProject) { EXPECT_EQ(printed(), "3 recipes, 7 members, 0 findings\n"); }

TEST_F(CheckProjectMacro, FindsNothingInTheSample) {
    const std::string sample = folder_.file("sample.hxs");
    makeSample(HX_SAMPLES_FOLDER "/getraenkelinie", sample);
    const Result result = hxrecipe({"run", "--project", sample.c_str(), HX_SAMPLES_FOLDER "/macros/check_project.lua"});
    EXPECT_EQ(result.status, 0) << result.results;
}

TEST_F(CheckProjectMacro, FindsCycles) {
    EXPECT_EQ(findings("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 2)"),
              "error: Rinse: The recipe contains itself: Rinse > Fill > Rinse. Delete one of these sub-recipes.\n"
              "3 recipes, 8 members, 1 findings\n");
    EXPECT_THAT(findings("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 3)"),
                HasSubstr("error: Fill: The recipe contains itself: Fill > Fill."));
}

TEST_F(CheckProjectMacro, FindsMembersThatLeadNowhere) {
    EXPECT_EQ(
        findings("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 77), "
                 "(88, 'Stop', 0)"),
        "error: no recipe, member 9: There is no recipe with the ID 88. Delete the member.\n"
        "error: Fill, member 8: The sub-recipe with the ID 77 does not exist. Delete the member or choose another "
        "recipe.\n"
        "3 recipes, 9 members, 2 findings\n");
}

TEST_F(CheckProjectMacro, FindsSubRecipesWithoutAVariableForTheirFileName) {
    EXPECT_THAT(findings("INSERT INTO TrcpRecipe (Name) VALUES ('Tea'); "
                         "INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (4, NULL, 3)"),
                HasSubstr("error: Tea, member 8: The sub-recipe has no variable for its file name."));
}

TEST_F(CheckProjectMacro, FindsVariablesThatAreNotInTheList) {
    EXPECT_EQ(
        findings("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Lost', 0);"
                 "UPDATE TrcpRecipe SET VarWrite = 'Gone' WHERE ID = 2"),
        "warning: Fill, member 8: The variable \"Lost\" is not in the variable list. Add it to the list or choose "
        "another one.\n"
        "warning: Rinse: VarWrite names \"Gone\", which is not in the variable list. Add it to the list or choose "
        "another one.\n"
        "3 recipes, 8 members, 2 findings\n");
}

TEST_F(CheckProjectMacro, FindsSharedTriggersAndEmptyRecipes) {
    EXPECT_EQ(
        findings("UPDATE TrcpRecipe SET VarSave = 'START' WHERE ID = 3; INSERT INTO TrcpRecipe (Name) VALUES ('Tea')"),
        "warning: Tea: The recipe has no members. Add variables, or delete the recipe.\n"
        "warning: Fill: VarSave \"START\" triggers the recipe \"Cola\" too. Give each recipe a trigger of its own.\n"
        "4 recipes, 7 members, 2 findings\n");
}

TEST_F(CheckProjectMacro, LeavesWarningsOutWhenItIsToldTo) {
    change("INSERT INTO TrcpRecipe (Name) VALUES ('Tea')");
    EXPECT_EQ(run().status, 1);
    EXPECT_EQ(printed({"errors"}), "4 recipes, 7 members, 0 findings\n");
    EXPECT_THAT(
        findings("INSERT INTO TrcpRecipeMember (ParentID, VarRecipe, ChildID) VALUES (3, 'Pump', 3)", {"errors"}),
        HasSubstr("1 findings"));
}

TEST_F(CheckProjectMacro, RefusesOtherArguments) {
    EXPECT_EQ(refusal({"warnings"}), "\"warnings\" is no argument; \"errors\" is the only one");
}

}  // namespace

}  // namespace hx::cli
