// SPDX-License-Identifier: MIT

// Projects that somebody has damaged, or made to do harm.
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "run_cli.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

class HostileProject : public CliTest {
  protected:
    HostileProject() {
        makeProject(file_,
                    "INSERT INTO TrcpRecipe (Name) VALUES ('A'), ('B');"
                    "INSERT INTO TrcpRecipeMember (ParentID, VarRecipe) VALUES (1, 'V'), (2, 'W');"
                    "INSERT INTO ThxVariable (Name) VALUES ('V'), ('W');");
        write("m.lua", "print('ran')");
        write("in.json", "{\"format\": \"hxrecipe\", \"version\": 1, \"recipes\": []}");
        write("list.csv", "V;INT\n");
    }

    /// What each command says that reads or changes a project.
    std::vector<std::pair<std::string, Result>> everyAnswer() {
        const std::string macro = folder_.file("m.lua"), in = folder_.file("in.json"), list = folder_.file("list.csv"),
                          out = folder_.file("out.json");
        const char* const file = file_.c_str();
        const std::vector<std::vector<const char*>> commands = {{"check", file},
                                                                {"list", file},
                                                                {"show", file, "A"},
                                                                {"where", file, "V"},
                                                                {"variables", "list", file},
                                                                {"variables", "import", file, list.c_str()},
                                                                {"export", file, out.c_str()},
                                                                {"diff", file, in.c_str()},
                                                                {"import", file, in.c_str()},
                                                                {"import", "--dry-run", file, in.c_str()},
                                                                {"run", "--project", file, macro.c_str()}};
        std::vector<std::pair<std::string, Result>> answers;
        for (const auto& command : commands) answers.emplace_back(command.front(), hxrecipe(command));
        return answers;
    }

    /// Makes a page of the project unreadable.
    void damage(const std::string& tableOrIndex) {
        const std::int64_t page = sqlite::Database(file_).number(
            "SELECT (rootpage - 1) * 4096 FROM sqlite_schema WHERE name = '" + tableOrIndex + "'");
        std::fstream file(file_, std::ios::binary | std::ios::in | std::ios::out);
        file.seekp(page);
        file << std::string(16, '\xFF');
    }

    /// Each page is sound, but an index tells of other rows than its table.
    void letAnIndexMissARow() {
        sqlite::Database(file_).execute("DROP INDEX IrcpRecipeMember_ChildID");
        sqlite::Database(file_).execute(
            "CREATE INDEX IrcpRecipeMember_ChildID ON TrcpRecipeMember (ChildID) WHERE ID = 1");
        std::string bytes = contents(file_);
        for (auto at = bytes.find(" WHERE ID = 1"); at != std::string::npos; at = bytes.find(" WHERE ID = 1")) {
            bytes.replace(at, 13, std::string(13, ' '));
        }
        write("plant.hxs", bytes);
    }
};

TEST_F(HostileProject, WithAnEndlessViewForATableIsRefusedByEveryCommand) {
    sqlite::Database(file_).execute(
        "DROP TABLE TrcpRecipeMember; CREATE VIEW TrcpRecipeMember AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL "
        "SELECT "
        "i FROM n) SELECT i AS ID, i AS ParentID, 0 AS ChildID, '' AS VarRecipe FROM n");
    for (const auto& [command, answer] : everyAnswer()) {
        EXPECT_NE(answer.status, 0) << command;
        EXPECT_THAT(answer.problems, HasSubstr("\"TrcpRecipeMember\" in it is no table.")) << command;
    }
}

TEST_F(HostileProject, WithATriggerIsRefusedByEveryCommand) {
    sqlite::Database(file_).execute(
        "CREATE TRIGGER Mine AFTER INSERT ON ThxVariable BEGIN DELETE FROM TrcpRecipe; END");
    for (const auto& [command, answer] : everyAnswer()) {
        EXPECT_NE(answer.status, 0) << command;
        EXPECT_THAT(answer.problems, HasSubstr("has the trigger \"Mine\"")) << command;
    }
    EXPECT_EQ(sqlite::Database(file_).number("SELECT count(*) FROM TrcpRecipe"), 2);
}

TEST_F(HostileProject, ThatIsDamagedIsRefusedButForItsCheckAndItsExport) {
    damage("IrcpRecipeMember_ChildID");
    for (const auto& [command, answer] : everyAnswer()) {
        EXPECT_NE(answer.status, 0) << command;
        EXPECT_THAT(answer.problems + answer.results, HasSubstr("is damaged: ")) << command;
        EXPECT_THAT(answer.results, testing::Not(HasSubstr("ran")));
    }
    const std::string saved = contents(folder_.file("out.json"));
    for (const char* text : {"\"A\"", "\"B\"", "\"V\"", "\"W\""}) EXPECT_THAT(saved, HasSubstr(text));
    EXPECT_THAT(hxrecipe({"export", file_.c_str(), folder_.file("out.json").c_str()}).problems,
                HasSubstr("Something may be missing in " + folder_.file("out.json")));
}

TEST_F(HostileProject, ThatIsDamagedIsNamedSoByItsCheck) {
    damage("IrcpRecipeMember_ChildID");
    const Result result = hxrecipe({"check", file_.c_str()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.problems, "");
    EXPECT_THAT(result.results, testing::StartsWith("error: project: The file is damaged: "));
    const Result json = hxrecipe({"check", "--json", file_.c_str()});
    EXPECT_EQ(nlohmann::json::parse(json.results)["findings"][0]["kind"], "damaged");
}

TEST_F(HostileProject, WhoseIndexesDoNotFitItsTablesIsNamedDamagedByItsCheck) {
    letAnIndexMissARow();
    EXPECT_THAT(hxrecipe({"check", file_.c_str()}).results, HasSubstr("The file is damaged: row 2 missing from index"));
}

TEST_F(HostileProject, OfMoreThan32MegabytesHasItsIndexesComparedByAThoroughCheck) {
    letAnIndexMissARow();
    sqlite::Database(file_).execute("CREATE TABLE Pictures (Bytes); INSERT INTO Pictures VALUES (zeroblob(33 << 20))");
    EXPECT_THAT(hxrecipe({"check", file_.c_str()}).results, testing::Not(HasSubstr("damaged")));
    EXPECT_THAT(hxrecipe({"check", "--thorough", file_.c_str()}).results,
                HasSubstr("The file is damaged: row 2 missing from index"));
}

TEST_F(HostileProject, ShowsNothingThatTheTerminalWouldObey) {
    sqlite::Database(file_).execute(
        "UPDATE TrcpRecipe SET Name = 'a' || char(0x202E) || 'b' || char(0x200F, 155, 27) "
        "WHERE ID = 1; UPDATE TrcpRecipeMember SET VarRecipe = 'x' || CAST(X'9B' AS TEXT);");
    const std::string name = "a\\xE2\\x80\\xAEb\\xE2\\x80\\x8F\\xC2\\x9B\\x1B";
    EXPECT_THAT(hxrecipe({"list", file_.c_str()}).results, HasSubstr('"' + name + '"'));
    EXPECT_THAT(hxrecipe({"check", file_.c_str()}).results, HasSubstr("\"x\\x9B\""));
    for (const auto& [command, answer] : everyAnswer()) {
        for (const char* mark : {"\xE2\x80\xAE", "\xE2\x80\x8F", "\xC2\x9B", "\x1B"}) {
            EXPECT_THAT(answer.results + answer.problems, testing::Not(HasSubstr(mark))) << command;
        }
    }
    const Result json = hxrecipe({"list", "--json", file_.c_str()});
    EXPECT_THAT(json.results, HasSubstr("a\\u202Eb\\u200F\\u009B\\u001b"));
    EXPECT_EQ(nlohmann::json::parse(json.results)["recipes"][0]["name"],
              "a\xE2\x80\xAE"
              "b\xE2\x80\x8F\xC2\x9B\x1B");
}

}  // namespace

}  // namespace hx::cli
