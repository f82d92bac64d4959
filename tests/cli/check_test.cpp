// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

class Check : public CliTest {
  protected:
    // What check says about a project of these rows; V and F are in its variable list.
    Result check(const std::string& sql) {
        std::filesystem::remove(file_);
        makeProject(file_, "INSERT INTO ThxVariable (Name) VALUES ('V'), ('F'), ('Größe');" + sql);
        const std::string before = contents(file_);
        Result result = hxrecipe({"check", file_.c_str()});
        EXPECT_EQ(contents(file_), before);
        EXPECT_EQ(filesInFolder().size(), 1U);
        EXPECT_EQ(result.problems, "");
        return result;
    }

    static constexpr const char* recipes = "INSERT INTO TrcpRecipe (Name) VALUES ('A'), ('B'), ('C');";
    static std::string members(const std::string& rows) {
        return recipes + ("INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES " + rows + ";");
    }
};

TEST_F(Check, FindsNothingInASoundProject) {
    EXPECT_EQ(check(members("(1, 0, 'v'), (1, 0, 'GRÖße'), (1, 2, 'F'), (2, 3, 'F')")).results, "No findings.\n");
    EXPECT_EQ(check(members("(1, 0, 'v')")).status, 0);
    EXPECT_EQ(check("").results, "No findings.\n");
}

TEST_F(Check, FindsACycle) {
    const Result result = check(members("(2, 3, 'F'), (3, 2, 'F'), (1, 2, 'F')"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results,
              "error: recipe \"B\": The recipe contains itself: \"B\" > \"C\" > \"B\". Delete one of these "
              "sub-recipes.\n1 finding: 1 error, 0 warnings.\n");
    EXPECT_NE(check(members("(3, 3, 'F')")).results.find("itself: \"C\" > \"C\"."), std::string::npos);
}

TEST_F(Check, FindsASubRecipeThatDoesNotExist) {
    const Result result = check(members("(1, 9, 'F'), (1, -1, 'F')"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.results,
        "error: recipe \"A\", member 1: The sub-recipe with the ID 9 does not exist. Delete the member or choose "
        "an existing recipe.\n"
        "error: recipe \"A\", member 2: The sub-recipe with the ID -1 does not exist. Delete the member or choose "
        "an existing recipe.\n"
        "2 findings: 2 errors, 0 warnings.\n");
}

TEST_F(Check, FindsAMemberWithoutARecipe) {
    EXPECT_EQ(check(members("(7, 0, 'V')")).results,
              "error: member 1: The recipe with the ID 7, to which the member belongs, does not exist. Delete the "
              "member.\n1 finding: 1 error, 0 warnings.\n");
}

TEST_F(Check, FindsVariablesThatAreNotInTheList) {
    EXPECT_EQ(
        check(members("(1, 0, 'W'), (1, 2, 'X')") + "UPDATE TrcpRecipe SET VarSetValue = 'Y' WHERE ID = 3").results,
        "warning: recipe \"C\": VarSetValue names the variable \"Y\", which is not in the variable list. Add the "
        "variable to the list or choose another one.\n"
        "warning: recipe \"A\", member 1: The variable \"W\" is not in the variable list. Add the variable to the "
        "list or choose another one.\n"
        "warning: recipe \"A\", member 2: The variable \"X\" is not in the variable list. Add the variable to the "
        "list or choose another one.\n"
        "3 findings: 0 errors, 3 warnings.\n");
}

TEST_F(Check, FindsASubRecipeWithoutAFileNameUnlessItsRecipeSavesTheValues) {
    const std::string rows = members("(1, 2, ''), (1, 3, '  '), (2, 3, NULL)");
    EXPECT_EQ(
        check(rows + "UPDATE TrcpRecipe SET SaveSubRecipes = -1 WHERE ID = 1").results,
        "error: recipe \"B\", member 3: The sub-recipe \"C\" has no variable for its file name. Choose one, or let "
        "the recipe save the values of its sub-recipes.\n1 finding: 1 error, 0 warnings.\n");
    EXPECT_NE(check(rows).results.find("3 findings: 3 errors"), std::string::npos);
}

TEST_F(Check, FindsTwoRecipesWithTheSameTrigger) {
    EXPECT_EQ(check(recipes + std::string("UPDATE TrcpRecipe SET VarLoad = 'V', VarSave = 'V' WHERE ID = 1;"
                                          "UPDATE TrcpRecipe SET VarWrite = 'v' WHERE ID = 3;"
                                          "UPDATE TrcpRecipe SET VarRead = 'F', VarLoad = 'F' WHERE ID = 2;"))
                  .results,
              "warning: recipe \"A\": The trigger variable \"V\" (VarLoad) also triggers \"C\" (VarWrite). Give each "
              "recipe a trigger of its own.\n1 finding: 0 errors, 1 warning.\n");
}

TEST_F(Check, PrintsJson) {
    check(members("(1, 9, 'F'), (7, 0, 'V')"));
    const Result result = hxrecipe({"check", "--json", file_.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(
        result.results,
        "{\"findings\": [\n"
        "{\"severity\":\"error\",\"kind\":\"missing-sub-recipe\",\"recipe\":{\"id\":1,\"name\":\"A\"},\"member\":1,"
        "\"problem\":\"The sub-recipe with the ID 9 does not exist.\",\"advice\":\"Delete the member or choose an "
        "existing recipe.\"},\n"
        "{\"severity\":\"error\",\"kind\":\"no-recipe\",\"member\":2,\"problem\":\"The recipe with the ID 7, to "
        "which the member belongs, does not exist.\",\"advice\":\"Delete the member.\"}\n"
        "], \"errors\": 2, \"warnings\": 0}\n");
}

TEST_F(Check, ThatCannotReadSaysSoWithAStatusOfItsOwn) {
    const Result missing = hxrecipe({"check", file_.c_str()});
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.results, "");
    EXPECT_EQ(missing.problems, "hxrecipe: Could not find file '" + file_ + "'.\n");
    write("plant.hxs", "no project");
    EXPECT_EQ(hxrecipe({"check", file_.c_str()}).problems,
              "hxrecipe: The file '" + file_ + "' is not a project file.\n");
    EXPECT_EQ(hxrecipe({"check"}).status, 2);
}

TEST_F(Check, FindsTwoTriggersInTheOrderOfTheRecipes) {
    const std::string results = check(recipes + std::string("UPDATE TrcpRecipe SET VarLoad = 'V' WHERE ID IN (1, 3);"
                                                            "UPDATE TrcpRecipe SET VarRead = 'F' WHERE ID IN (1, 2);"))
                                    .results;
    const auto v = results.find("variable \"V\" (VarLoad) also triggers \"C\"");
    const auto f = results.find("variable \"F\" (VarRead) also triggers \"B\"");
    EXPECT_LT(v, f);
    EXPECT_NE(f, std::string::npos);
}

TEST_F(Check, LooksAtEveryOneOfManyMembers) {
    // Wrong are those whose number can be divided by 31.
    const Result result = check(recipes + std::string("DROP INDEX IrcpRecipeMember_Variable;"
                                                      "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                                      "WHERE i < 310) INSERT INTO TrcpRecipeMember (ParentID, ChildID, "
                                                      "VarRecipe) SELECT 1, 2, iif(i % 31, 'v', 'w' || i) FROM n;"));
    std::string expected;
    for (int i = 31; i <= 310; i += 31) {
        expected += "warning: recipe \"A\", member " + std::to_string(i) + ": The variable \"w" + std::to_string(i) +
                    "\" is not in the variable list. Add the variable to the list or choose another one.\n";
    }
    EXPECT_EQ(result.results, expected + "10 findings: 0 errors, 10 warnings.\n");
}

}  // namespace

}  // namespace hx::cli
