// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

/// A project with everything that an export must keep: null and empty, text that needs escapes, a column of the host,
/// members without a recipe, a sub-recipe that does not exist.
class Exchange : public CliTest {
  protected:
    Exchange() { makeProject(file_, rows); }

    static constexpr const char* hostColumns =
        "ALTER TABLE TrcpRecipe ADD COLUMN Picture BLOB; ALTER TABLE TrcpRecipeMember ADD COLUMN Unit VARCHAR(9);";
    static constexpr const char* rows =
        "ALTER TABLE TrcpRecipe ADD COLUMN Picture BLOB; ALTER TABLE TrcpRecipeMember ADD COLUMN Unit VARCHAR(9);"
        "INSERT INTO TrcpRecipe (ID, Name, Comment, FilePath, Enabled, StandardValue, Options, Picture) VALUES"
        " (3, 'A \"q\" \\', NULL, '', 1, 1.5, 3, X'00FF'), (5, 'Größe', char(10), NULL, -1, 0.1, NULL, NULL);"
        "INSERT INTO TrcpRecipeMember (ID, ParentID, ChildID, VarRecipe, Unit) VALUES (2, 3, 0, 'V', 'bar'),"
        " (4, 3, 5, 'F', NULL), (6, 5, 77, NULL, ''), (8, 90, 0, 'W', NULL);";

    std::string exported(const std::string& project, const std::string& name) {
        const std::string path = folder_.file(name);
        const Result result = hxrecipe({"export", project.c_str(), path.c_str()});
        EXPECT_EQ(result.status, 0) << result.problems;
        return contents(path);
    }

    std::string makeOther(const std::string& sql) {
        const std::string path = folder_.file("other.hxs");
        std::filesystem::remove(path);
        makeProject(path, hostColumns + sql);
        return path;
    }

    static std::string with(std::string text, const std::string& from, const std::string& to) {
        const auto at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return at == std::string::npos ? text : text.replace(at, from.size(), to);
    }

    // What import says of this text; the project must stay as it is.
    std::string problem(const std::string& text) {
        const std::string in = write("bad.json", text);
        const std::string before = contents(file_);
        const Result result = hxrecipe({"import", file_.c_str(), in.c_str(), "--mode", "replace"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.results, "");
        EXPECT_EQ(contents(file_), before);
        const std::string prefix = "hxrecipe: " + in + ", ";
        EXPECT_TRUE(result.problems.starts_with(prefix)) << result.problems;
        return result.problems.substr(std::min(prefix.size(), result.problems.size()));
    }
};

TEST_F(Exchange, AnExportHoldsEveryColumnOneMemberALine) {
    const std::string before = contents(file_);
    const std::string text = exported(file_, "a.json");
    EXPECT_EQ(contents(file_), before);
    EXPECT_NE(text.find("      \"Name\": \"A \\\"q\\\" \\\\\",\n"), std::string::npos) << text;
    EXPECT_NE(text.find("      \"FilePath\": \"\",\n"), std::string::npos);
    EXPECT_NE(text.find("      \"Comment\": null,\n"), std::string::npos);
    EXPECT_NE(text.find("      \"Picture\": {\"hex\":\"00FF\"},\n"), std::string::npos);
    EXPECT_NE(text.find("      \"members\": [\n"
                        "        {\"ID\": 2, \"VarRecipe\": \"V\", \"Unit\": \"bar\"},\n"
                        "        {\"ID\": 4, \"VarRecipe\": \"F\", \"Unit\": null, \"ChildID\": 5, \"subRecipe\": "
                        "\"Größe\"}\n"
                        "      ]\n"),
              std::string::npos);
    EXPECT_NE(text.find("\"Unit\": \"\", \"ChildID\": 77, \"subRecipe\": null}"), std::string::npos);
    EXPECT_NE(text.find("\"membersWithoutRecipe\": [\n    {\"ID\": 8, \"ParentID\": 90, \"VarRecipe\": \"W\""),
              std::string::npos);
}

TEST_F(Exchange, ATextWithAZeroByteComesBackWhole) {
    sqlite::Database(file_).execute("UPDATE TrcpRecipe SET Comment = 'a' || char(0) || 'b' WHERE ID = 3");
    const std::string text = exported(file_, "a.json"), other = makeOther("");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str()}).status, 0);
    EXPECT_EQ(exported(other, "b.json"), text);
    EXPECT_EQ(sqlite::Database(other).number("SELECT length(CAST(Comment AS BLOB)) FROM TrcpRecipe WHERE ID = 3"), 3);
}

TEST_F(Exchange, ExportImportIntoAnEmptyProjectAndExportGivesTheSameBytes) {
    const std::string text = exported(file_, "a.json");
    const std::string other = makeOther("");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str()}).status, 0);
    EXPECT_EQ(exported(other, "b.json"), text);
    EXPECT_EQ(query(other, "TrcpRecipeMember"), query(file_, "TrcpRecipeMember"));
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), other.c_str()}).results, "No differences.\n");
}

TEST_F(Exchange, ColumnsOfAnyTypeKeepWhatTheyHold) {
    const std::string columns =
        "ALTER TABLE TrcpRecipe ADD COLUMN Made DATETIME; ALTER TABLE TrcpRecipe ADD COLUMN Serial BIGINT;"
        "ALTER TABLE TrcpRecipe ADD COLUMN Price DECIMAL(10,2); ALTER TABLE TrcpRecipe ADD COLUMN Plain;"
        "ALTER TABLE TrcpRecipeMember ADD COLUMN Note CLOB; ALTER TABLE TrcpRecipeMember ADD COLUMN Data BLOB;";
    const std::string other = makeOther(columns);
    sqlite::Database(file_).execute(
        columns +
        "UPDATE TrcpRecipe SET Made = 45000.25, Serial = 9007199254740993, Price = 2.50, Plain = 7 WHERE ID = 3;"
        "UPDATE TrcpRecipe SET Made = '2026-11-21', Serial = -1, Price = 1e300, Plain = 1.0 / 3 WHERE ID = 5;"
        "UPDATE TrcpRecipeMember SET Note = '007', Data = 5 WHERE ID = 2;"
        "UPDATE TrcpRecipeMember SET Note = '', Data = 'text' WHERE ID = 4;");
    const std::string text = exported(file_, "a.json");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str()}).problems, "");
    EXPECT_EQ(exported(other, "b.json"), text);
    EXPECT_EQ(problem(with(text, "\"Note\": \"007\"", "\"Note\": 7")), "line 30: \"Note\": a text is expected\n");
    // As a real number it is the same.
    sqlite::Database(other).execute("UPDATE TrcpRecipe SET Serial = 9007199254740992 WHERE ID = 3");
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), other.c_str()}).results,
              "~ recipe \"A \"q\" \\\", Serial: 9007199254740993 -> 9007199254740992\n");
}

TEST_F(Exchange, BytesAreTheSameInSmallAndCapitalDigits) {
    const std::string in = write("b.json", with(exported(file_, "a.json"), "00FF", "00ff"));
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), in.c_str()}).results, "No differences.\n");
}

TEST_F(Exchange, AnExportThatIsReplacedKeepsItsPermissionsAndTheLinkToIt) {
    namespace fs = std::filesystem;
    const std::string real = write("real.json", "{\n  \"format\": \"hxrecipe\"");
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.json", folder_.file("link.json"));
    const std::string text = exported(file_, "link.json");
    EXPECT_TRUE(fs::is_symlink(folder_.file("link.json")));
    EXPECT_FALSE(fs::is_symlink(real));
    EXPECT_EQ(contents(real), text);
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(filesInFolder().size(), 3U);
}

TEST_F(Exchange, AnExportReplacesOnlyAnExport) {
    const std::string text = exported(file_, "a.json");
    EXPECT_EQ(exported(file_, "a.json"), text);
    const std::string mine = write("mine.json", "mine");
    for (const std::string& target : {mine, file_}) {
        const std::string before = contents(target);
        const Result result = hxrecipe({"export", file_.c_str(), target.c_str()});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.problems, "hxrecipe: The file '" + target + "' exists already and is no export.\n");
        EXPECT_EQ(contents(target), before);
    }
    EXPECT_EQ(hxrecipe({"export", file_.c_str(), "/no/such/folder/x.json"}).status, 1);
    EXPECT_EQ(filesInFolder().size(), 3U);
}

TEST_F(Exchange, WhatIsNotTextIsNotExported) {
    sqlite::Database(file_).execute("UPDATE TrcpRecipe SET Comment = CAST(X'FF' AS TEXT) WHERE ID = 5");
    const std::string out = folder_.file("a.json");
    const Result result = hxrecipe({"export", file_.c_str(), out.c_str()});
    EXPECT_EQ(result.problems, "hxrecipe: recipe \"Größe\", column \"Comment\": the text is not UTF-8\n");
    EXPECT_EQ(filesInFolder().size(), 1U);
}

TEST_F(Exchange, AddLeavesWhatIsThere) {
    exported(file_, "a.json");
    const std::string other = makeOther(
        "INSERT INTO TrcpRecipe (ID, Name, Comment) VALUES (3, 'grÖßE', 'mine'), (7, 'Mine', '');"
        "INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe) VALUES (2, 3, 'X');");
    const Result result = hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str()});
    EXPECT_EQ(result.results, "Imported " + folder_.file("a.json") + ": 1 recipes added, 0 changed, 0 removed.\n");
    EXPECT_EQ(query(other, "SELECT ID, Name, Comment FROM TrcpRecipe WHERE ID < 9"), "3|grÖßE|mine,7|Mine|");
    // Its ID is taken, and so are some of its members'; the one that it includes is found by its name.
    EXPECT_EQ(query(other, "SELECT ID, ParentID, ChildID, VarRecipe FROM TrcpRecipeMember WHERE ID <> 8"),
              "2|3|0|X,9|91|0|V,10|91|3|F");
    EXPECT_EQ(query(other, "SELECT ID, Name FROM TrcpRecipe WHERE ID > 8"), "91|A \"q\" \\");
}

TEST_F(Exchange, UpdateChangesWhatTheFileNamesAndReplaceDeletesTheRest) {
    exported(file_, "a.json");
    const char* sql =
        "INSERT INTO TrcpRecipe (ID, Name, Comment) VALUES (30, 'größe', 'old'), (7, 'Mine', '');"
        "INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe) VALUES (20, 30, 'X'), (21, 7, 'Y');";
    const std::string in = folder_.file("a.json");
    for (const char* mode : {"update", "replace"}) {
        const std::string other = makeOther(sql);
        EXPECT_EQ(hxrecipe({"import", other.c_str(), in.c_str(), "--mode", mode}).status, 0);
        const bool replace = mode == std::string("replace");
        EXPECT_EQ(query(other, "SELECT ID, Name FROM TrcpRecipe"),
                  replace ? "3|A \"q\" \\,30|Größe" : "3|A \"q\" \\,7|Mine,30|Größe");
        EXPECT_EQ(query(other, "SELECT ParentID, ChildID FROM TrcpRecipeMember WHERE ParentID = 30"), "30|77");
        EXPECT_EQ(hxrecipe({"diff", other.c_str(), in.c_str()}).results,
                  replace ? "No differences.\n" : "- recipe \"Mine\"\n");
    }
}

TEST_F(Exchange, ADryRunPrintsTheDifferenceAndChangesNothing) {
    const std::string text = exported(file_, "a.json");
    const std::string in =
        write("b.json", with(with(text, "\"Comment\": null", "\"Comment\": \"new\""), "\"V\"", "\"U\""));
    const std::string before = contents(file_);
    const Result result = hxrecipe({"import", file_.c_str(), in.c_str(), "--dry-run", "--mode", "update"});
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_EQ(result.results,
              "~ recipe \"A \"q\" \\\", Comment: null -> \"new\"\n"
              "- recipe \"A \"q\" \\\", variable \"V\"\n"
              "+ recipe \"A \"q\" \\\", variable \"U\"\n");
    EXPECT_EQ(contents(file_), before);
    EXPECT_EQ(hxrecipe({"import", file_.c_str(), in.c_str(), "--dry-run"}).results, "No differences.\n");
    EXPECT_EQ(filesInFolder().size(), 3U);
}

TEST_F(Exchange, BadInputIsNamedWithLineAndField) {
    const std::string text = exported(file_, "a.json");
    EXPECT_NE(problem("{\n  \"format\": \"hxrecipe\",\n  oops\n}").find("line 3: "), std::string::npos);
    EXPECT_EQ(problem("{}"), "line 1: this is no export: \"format\": \"hxrecipe\" is missing\n");
    EXPECT_EQ(problem(with(text, "\"version\": 1", "\"version\": 2")),
              "line 3: \"version\": this program reads version 1 alone\n");
    EXPECT_EQ(problem(with(text, "\"ID\": 3", "\"ID\": -1")), "line 6: \"ID\": no recipe has the ID -1\n");
    EXPECT_EQ(problem(with(text, "\"ID\": 3", "\"ID\": 3000000000")), "line 6: \"ID\": the number is too large\n");
    EXPECT_EQ(problem(with(text, "\"Options\": 3", "\"Options\": \"3\"")),
              "line 23: \"Options\": a whole number is expected\n");
    EXPECT_EQ(problem(with(text, "\"Options\": 3", "\"Option\": 3")),
              "line 23: \"Option\": the table TrcpRecipe has no such column\n");
    EXPECT_EQ(problem(with(text, "\"Enabled\": true", "\"Enabled\": null")),
              "line 5: Column \"TrcpRecipe.Enabled\" needs a value.\n");
    EXPECT_EQ(problem(with(text, "\"subRecipe\": \"Größe\"", "\"subRecipe\": \"B\"")),
              "line 27: \"subRecipe\": there is no recipe \"B\"\n");
    EXPECT_EQ(problem(with(text, ", \"subRecipe\": null", "")),
              "line 51: \"ChildID\": \"subRecipe\" with the name of the recipe is missing\n");
    EXPECT_EQ(problem(with(text, "\"Name\": \"Größe\"", "\"Name\": \"a \\\"Q\\\" \\\\\"")),
              "line 32: \"Name\": another recipe of this file has the name \"a \"Q\" \\\"\n");
    EXPECT_EQ(problem(with(text, "\"hex\":\"00FF\"", "\"hex\":\"0\"")),
              "line 24: bytes are written as {\"hex\": \"0A1B...\"}\n");
    EXPECT_EQ(problem(with(text, "\"ParentID\": 90", "\"ParentID\": 3")),
              "line 56: \"ParentID\": the missing recipe's ID 3 belongs to a recipe of the project\n");
}

TEST_F(Exchange, DiffComparesByMeaning) {
    const std::string text = exported(file_, "a.json");
    const std::string other =
        write("b.json", with(with(with(text, "{\"ID\": 2, \"VarRecipe\": \"V\"", "{\"ID\": 11, \"VarRecipe\": \"V\""),
                                  "\"Unit\": \"bar\"", "\"Unit\": \"psi\""),
                             "\"Enabled\": true", "\"Enabled\": 1"));
    const Result result = hxrecipe({"diff", file_.c_str(), other.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.results, "~ recipe \"A \"q\" \\\", variable \"V\", Unit: \"bar\" -> \"psi\"\n");
    EXPECT_EQ(hxrecipe({"diff", "--json", file_.c_str(), other.c_str()}).results,
              "{\"differences\": [\n{\"kind\":\"changed\",\"recipe\":\"A \\\"q\\\" \\\\\",\"member\":\"variable "
              "\\\"V\\\"\",\"column\":\"Unit\",\"before\":\"bar\",\"after\":\"psi\"}\n]}\n");
    const std::string empty = makeOther("");
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), empty.c_str()}).results,
              "- recipe \"A \"q\" \\\"\n- recipe \"Größe\"\n- without a recipe, variable \"W\"\n");
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), file_.c_str()}).status, 0);
}

TEST_F(Exchange, DiffTellsRecipesApartWhoseNamesDifferInCaseAlone) {
    // Another program may have made such: the table ignores the case of ASCII letters alone.
    const std::string two = "INSERT INTO TrcpRecipe (Name, Comment) VALUES ('GRÖßE', 'a'), ('größe', 'b')";
    sqlite::Database(file_).execute("DELETE FROM TrcpRecipe;" + two);
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), file_.c_str()}).results, "No differences.\n");
    const std::string one = makeOther("INSERT INTO TrcpRecipe (Name, Comment) VALUES ('größe', 'b');");
    EXPECT_TRUE(hxrecipe({"diff", one.c_str(), file_.c_str()}).results.starts_with("+ recipe \"GRÖßE\"\n+ without"));
}

TEST_F(Exchange, TheOrderOfMembersCounts) {
    const std::string other = makeOther(
        "INSERT INTO TrcpRecipe (Name) VALUES ('R'); INSERT INTO TrcpRecipeMember (ParentID, VarRecipe) VALUES"
        " (1, 'P'), (1, 'Q')");
    const std::string text = exported(other, "a.json");
    const std::string turned =
        write("b.json", with(with(with(text, "\"P\"", "\"X\""), "\"Q\"", "\"P\""), "\"X\"", "\"Q\""));
    EXPECT_EQ(hxrecipe({"diff", other.c_str(), turned.c_str()}).results, "~ recipe \"R\", order of the members\n");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), turned.c_str(), "--mode", "update"}).status, 0);
    EXPECT_EQ(query(other, "SELECT ID, VarRecipe FROM TrcpRecipeMember"), "1|Q,2|P");
}

TEST_F(Exchange, UpdateKeepsTheColumnsOfMembersThatTheFileDoesNotName) {
    const std::string other = makeOther(
        "INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'R');"
        "INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe, Unit) VALUES (1, 1, 'V', 'bar'), (2, 1, 'W', 'psi');");
    const std::string in = write("b.json",
                                 "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": [{\"Name\": \"R\", "
                                 "\"members\": [{\"VarRecipe\": \"X\"}, {\"VarRecipe\": \"v\"}]}]}");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), in.c_str(), "--mode", "update"}).problems, "");
    EXPECT_EQ(query(other, "SELECT VarRecipe, Unit FROM TrcpRecipeMember"), "X|,v|bar");
}

TEST_F(Exchange, EveryMemberWithoutARecipeIsAddedOnce) {
    const std::string members = "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (90, 77, 'F')";
    // As projects of earlier versions can hold them.
    const std::string twins = "DROP INDEX IrcpRecipeMember_Variable; ";
    const std::string other = makeOther(twins + members);
    sqlite::Database(file_).execute(twins + members + ", (90, 77, 'F')");
    exported(file_, "a.json");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str()}).problems, "");
        EXPECT_EQ(query(other, "SELECT COUNT(*) FROM TrcpRecipeMember WHERE ParentID = 90"), "3");
    }
}

TEST_F(Exchange, MembersThatAreTheSameAreRefusedByLineAndNothingIsWritten) {
    const std::string start =
        "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": [{\"ID\": 1, \"Name\": \"R\"},\n{\"Name\": \"S\", "
        "\"members\": [\n";
    const std::string twin = "{\"VarRecipe\": \"F\", \"ChildID\": 1, \"subRecipe\": \"R\"}";
    const std::string variable = "{\"VarRecipe\": \"V\"}";
    const std::string path = makeOther("");
    const std::string before = contents(path);
    const auto refusal = [&](const std::string& member, const std::string& mode) {
        const std::string in = write("twins.json", start + member + ",\n" + member + "]}]}");
        const Result result = hxrecipe({"import", path.c_str(), in.c_str(), "--mode", mode.c_str()});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(contents(path), before);
        return result.problems;
    };
    const std::string place = "hxrecipe: " + folder_.file("twins.json") + ", line 4: ";
    for (const char* mode : {"add", "update", "replace"}) {
        EXPECT_EQ(refusal(twin, mode),
                  place + "The recipe has this sub-recipe with the variable \"F\" for its file name already.\n");
        EXPECT_EQ(refusal(variable, mode), place + "The recipe has the variable \"V\" already.\n");
    }
}

TEST_F(Exchange, AMemberWithoutARecipeIsChangedWhereItIs) {
    exported(file_, "a.json");
    for (const auto& [mode, expected] : {std::pair{"add", "5|w|bar"}, {"update", "5|W|"}, {"replace", "8|W|"}}) {
        const std::string other =
            makeOther("INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe, Unit) VALUES (5, 90, 'w', 'bar')");
        EXPECT_EQ(hxrecipe({"import", other.c_str(), folder_.file("a.json").c_str(), "--mode", mode}).problems, "");
        EXPECT_EQ(query(other, "SELECT ID, VarRecipe, Unit FROM TrcpRecipeMember WHERE ParentID = 90"), expected);
    }
}

TEST_F(Exchange, ANewRecipeDoesNotComeToTheIdOfAMissingSubRecipe) {
    const std::string other = makeOther("INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Mine')");
    const std::string in = write("b.json",
                                 "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": [{\"ID\": 1, \"Name\": "
                                 "\"R\", \"members\": [{\"ChildID\": 2, \"subRecipe\": null}]}]}");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), in.c_str()}).problems, "");
    EXPECT_EQ(query(other, "SELECT ID, Name FROM TrcpRecipe"), "1|Mine,3|R");
    EXPECT_EQ(query(other, "SELECT ParentID, ChildID FROM TrcpRecipeMember"), "3|2");
}

TEST_F(Exchange, ASubRecipeIsTheOneOfItsNameWhateverItsId) {
    const std::string other = makeOther("INSERT INTO TrcpRecipe (ID, Name) VALUES (1, 'Mine'), (2, 'Other')");
    const std::string in = write("b.json",
                                 "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": [{\"ID\": 9, \"Name\": "
                                 "\"R\", \"members\": [{\"subRecipe\": \"Mine\"}, {\"ChildID\": 0, \"subRecipe\": "
                                 "\"MINE\"}, {\"ChildID\": 2, \"subRecipe\": \"mine\"}]}]}");
    EXPECT_EQ(problem(contents(in)), "line 1: \"subRecipe\": there is no recipe \"Mine\"\n");
    EXPECT_EQ(hxrecipe({"import", other.c_str(), in.c_str()}).problems, "");
    EXPECT_EQ(query(other, "SELECT ParentID, ChildID FROM TrcpRecipeMember"), "9|1,9|1,9|1");
}

TEST_F(Exchange, FilesThatCannotBeReadAreNamed) {
    const std::string none = folder_.file("none");
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), none.c_str()}).status, 2);
    EXPECT_EQ(hxrecipe({"diff", file_.c_str(), none.c_str()}).problems,
              "hxrecipe: Could not find file '" + none + "'.\n");
    EXPECT_EQ(hxrecipe({"import", file_.c_str(), none.c_str()}).status, 1);
    EXPECT_EQ(hxrecipe({"import", file_.c_str(), none.c_str(), "--mode", "guess"}).status, 2);
    EXPECT_EQ(hxrecipe({"import", file_.c_str()}).status, 2);
    EXPECT_EQ(hxrecipe({"export", none.c_str(), none.c_str()}).status, 1);
    EXPECT_EQ(filesInFolder().size(), 1U);
}

}  // namespace

}  // namespace hx::cli
