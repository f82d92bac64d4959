// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

/// Press is included by Line and by Plant; Line includes Wash and Press, Plant includes Line; Wash contains itself.
class ReadingCommands : public CliTest {
  protected:
    ReadingCommands() {
        makeProject(file_,
                    "ALTER TABLE TrcpRecipe ADD COLUMN Owner VARCHAR(20);"
                    "INSERT INTO ThxVariable (Name) VALUES ('V'), ('F'), ('Unused');"
                    "INSERT INTO TrcpRecipe (ID, Name, Enabled, StandardValue, FilePath, VarLoad) VALUES"
                    " (1, 'Plant', 1, 1.5, NULL, ''), (2, 'Line', -1, 0, '', 'v'), (5, 'Größe', 0, 0, '', ''),"
                    " (7, 'Wash', 0, 0, '', ''), (8, '5', 0, 0, '', '');"
                    "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES"
                    " (1, 2, 'F'), (1, 5, 'F'), (2, 0, 'V'), (2, 7, ''), (2, 5, 'F'), (5, 0, 'V'), (7, 7, 'F'),"
                    " (7, 99, 'F');");
        before_ = contents(file_);
    }
    ~ReadingCommands() override {
        EXPECT_EQ(contents(file_), before_);
        EXPECT_EQ(filesInFolder().size(), 1U);
    }

    std::string before_;
};

TEST_F(ReadingCommands, ListGivesTheRecipesWithTheirCounts) {
    const Result result = hxrecipe({"list", file_.c_str()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.results,
              "        ID   Active  Variables  Sub-recipes  Name\n"
              "         1      yes          0            2  \"Plant\"\n"
              "         2      yes          1            2  \"Line\"\n"
              "         5       no          1            0  \"Größe\"\n"
              "         7       no          0            2  \"Wash\"\n"
              "         8       no          0            0  \"5\"\n");
    EXPECT_NE(hxrecipe({"list", file_.c_str(), "--json"})
                  .results.find("{\"recipes\": [\n"
                                "{\"id\":1,\"name\":\"Plant\",\"enabled\":true,\"variables\":0,\"subRecipes\":2},\n"),
              std::string::npos);
}

TEST_F(ReadingCommands, ShowGivesPropertiesVariablesTreeAndUsers) {
    const Result result = hxrecipe({"show", file_.c_str(), "plant"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "");
    EXPECT_NE(result.results.find("Recipe \"Plant\"\n  ID: 1\n  Name: \"Plant\"\n"), std::string::npos);
    EXPECT_NE(result.results.find("  FilePath: no value\n"), std::string::npos);
    EXPECT_NE(result.results.find("  Enabled: yes\n"), std::string::npos);
    EXPECT_NE(result.results.find("  StandardValue: 1.5\n"), std::string::npos);
    EXPECT_NE(result.results.find("  Owner: no value\n"
                                  "\nVariables: 0\n"
                                  "\nSub-recipes, with their own: 6\n"
                                  "  \"Line\", file name \"F\"\n"
                                  "    \"Wash\"\n"
                                  "      \"Wash\", file name \"F\" - contains itself\n"
                                  "      ID 99, file name \"F\" - does not exist\n"
                                  "    \"Größe\", file name \"F\"\n"
                                  "  \"Größe\", file name \"F\"\n"
                                  "\nUsed by: 0\n"),
              std::string::npos)
        << result.results;
}

TEST_F(ReadingCommands, ShowNamesThoseThatUseARecipeDirectlyAndThroughOthers) {
    const std::string text = hxrecipe({"show", file_.c_str(), "WASH"}).results;
    EXPECT_NE(text.find("\nUsed by: 3\n  \"Line\"\n  \"Wash\"\n  \"Plant\", through \"Line\"\n"), std::string::npos)
        << text;
}

TEST_F(ReadingCommands, ShowTakesANameBeforeAnId) {
    EXPECT_NE(hxrecipe({"show", file_.c_str(), "5"}).results.find("Recipe \"5\""), std::string::npos);
    EXPECT_NE(hxrecipe({"show", file_.c_str(), "7"}).results.find("Recipe \"Wash\""), std::string::npos);
    EXPECT_NE(hxrecipe({"show", file_.c_str(), "GRÖßE"}).results.find("Variables: 1\n  \"V\"\n"), std::string::npos);
}

TEST_F(ReadingCommands, ShowPrintsJson) {
    const std::string text = hxrecipe({"show", "--json", file_.c_str(), "Line"}).results;
    EXPECT_NE(text.find("\"StandardValue\": 0.0"), std::string::npos) << text;
    EXPECT_NE(text.find("\"Enabled\": -1"), std::string::npos);
    EXPECT_NE(text.find("\"mark\": \"missing\""), std::string::npos);
    EXPECT_NE(text.find("\"through\": null"), std::string::npos);
    EXPECT_TRUE(text.ends_with("}\n"));
}

TEST_F(ReadingCommands, ShowGivesBytesAsAnExportDoes) {
    sqlite::Database(file_).execute("UPDATE TrcpRecipe SET Owner = X'00FF' WHERE Name = 'Wash'");
    before_ = contents(file_);
    EXPECT_NE(hxrecipe({"show", file_.c_str(), "Wash"}).results.find("  Owner: {\"hex\":\"00FF\"}\n"),
              std::string::npos);
    EXPECT_NE(hxrecipe({"show", "--json", file_.c_str(), "Wash"}).results.find("\"hex\": \"00FF\""), std::string::npos);
}

TEST_F(ReadingCommands, ShowCutsATreeThatIsTooDeep) {
    std::string sql;
    for (int i = 100; i < 300; ++i) {
        sql += "INSERT INTO TrcpRecipe (ID, Name) VALUES (" + std::to_string(i) + ", 'R" + std::to_string(i) + "');" +
               "INSERT INTO TrcpRecipeMember (ParentID, ChildID) VALUES (" + std::to_string(i) + ", " +
               std::to_string(i + 1) + ");";
    }
    sqlite::Database(file_).execute(sql);
    before_ = contents(file_);
    const std::string text = hxrecipe({"show", file_.c_str(), "R100"}).results;
    EXPECT_NE(text.find("with their own: 100\n"), std::string::npos);
    EXPECT_NE(text.find("\"R200\" - goes on deeper\n"), std::string::npos);
}

TEST_F(ReadingCommands, WhereFindsAVariable) {
    const Result result = hxrecipe({"where", file_.c_str(), "v"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.results,
              "recipe \"Line\": VarLoad\n"
              "recipe \"Line\", member 3: variable\n"
              "recipe \"Größe\", member 6: variable\n"
              "recipe \"Plant\": through the sub-recipe \"Line\"\n");
    const std::string json = hxrecipe({"where", "--json", file_.c_str(), "v"}).results;
    EXPECT_NE(json.find("{\"name\": \"v\", \"recipe\": null, \"references\": [\n"
                        "{\"kind\":\"column\",\"recipe\":{\"id\":2,\"name\":\"Line\"},\"column\":\"VarLoad\"},\n"),
              std::string::npos)
        << json;
    EXPECT_NE(
        json.find("{\"kind\":\"indirect\",\"recipe\":{\"id\":1,\"name\":\"Plant\"},\"through\":{\"id\":2,\"name\":"
                  "\"Line\"}}\n]}\n"),
        std::string::npos)
        << json;
}

TEST_F(ReadingCommands, WhereFindsARecipe) {
    EXPECT_EQ(hxrecipe({"where", file_.c_str(), "wash"}).results,
              "recipe \"Line\", member 4: sub-recipe\n"
              "recipe \"Wash\", member 7: sub-recipe\n"
              "recipe \"Plant\": through the sub-recipe \"Line\"\n");
    EXPECT_EQ(hxrecipe({"where", file_.c_str(), "Plant"}).results, "Nothing refers to \"Plant\".\n");
    EXPECT_EQ(hxrecipe({"where", file_.c_str(), "Unused"}).results, "Nothing refers to \"Unused\".\n");
}

TEST_F(ReadingCommands, WhereFindsFileNames) {
    const std::string text = hxrecipe({"where", file_.c_str(), "F"}).results;
    EXPECT_NE(text.find("recipe \"Plant\", member 1: file name of the sub-recipe \"Line\"\n"), std::string::npos);
    EXPECT_NE(text.find("recipe \"Wash\", member 8: file name of the sub-recipe with the ID 99 (missing)\n"),
              std::string::npos)
        << text;
}

TEST_F(ReadingCommands, WhatIsNotThereIsSaid) {
    const Result show = hxrecipe({"show", file_.c_str(), "Nobody"});
    EXPECT_EQ(show.status, 1);
    EXPECT_EQ(show.results, "");
    EXPECT_EQ(show.problems, "hxrecipe: There is no recipe \"Nobody\" in " + file_ + "\n");
    const Result where = hxrecipe({"where", file_.c_str(), "Nobody"});
    EXPECT_EQ(where.status, 1);
    EXPECT_EQ(where.results, "");
    EXPECT_EQ(where.problems, "hxrecipe: There is neither a variable nor a recipe \"Nobody\" in " + file_ + "\n");
}

TEST_F(ReadingCommands, AFileThatIsNoProjectIsRefused) {
    const std::string other = folder_.file("missing.hxs");
    for (const auto& arguments : std::vector<std::vector<const char*>>{
             {"list", other.c_str()}, {"show", other.c_str(), "A"}, {"where", other.c_str(), "A"}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.results, "");
        EXPECT_EQ(result.problems, "hxrecipe: Could not find file '" + other + "'.\n");
    }
    EXPECT_EQ(hxrecipe({"show", file_.c_str()}).status, 2);
    EXPECT_EQ(hxrecipe({"where", file_.c_str()}).status, 2);
    EXPECT_EQ(hxrecipe({"list", file_.c_str(), "x"}).status, 2);
}

}  // namespace

}  // namespace hx::cli
