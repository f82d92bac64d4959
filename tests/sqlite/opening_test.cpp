// SPDX-License-Identifier: MIT

// Which files open, and what is said of those that do not.
#include <filesystem>
#include <fstream>

#include "adapters/sqlite/project_check.h"
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

namespace fs = std::filesystem;

class Opening : public ProjectTest {
  protected:
    // What opening the file says; the file must not have been made or changed by that.
    std::string refusal(const std::string& path) {
        const auto before = contents(path);
        ado::Connection connection(provider_);
        const auto error = errorOf([&] { connection.open("Provider=x;Data Source=" + path + ";Mode=Read|Write;"); });
        EXPECT_EQ(error.number(), ado::dbErrUnspecified);
        EXPECT_EQ(connection.state(), ado::adStateClosed);
        EXPECT_EQ(contents(path), before);
        return error.description();
    }
    static std::string contents(const std::string& path) {
        if (!fs::is_regular_file(path)) return "none";
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    std::string write(const std::string& name, const std::string& text) {
        std::ofstream(folder_.file(name), std::ios::binary) << text;
        return folder_.file(name);
    }
};

TEST_F(Opening, AMissingFileIsNotMade) {
    const std::string path = folder_.file("Missing.hxs");
    EXPECT_EQ(refusal(path), "Could not find file '" + path + "'.");
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(refusal(folder_.file("no/folder.hxs")), "Could not find file '" + folder_.file("no/folder.hxs") + "'.");
    EXPECT_EQ(refusal(":memory:"), "Could not find file ':memory:'.");
    EXPECT_EQ(refusal(""), "Could not find file ''.");
}

TEST_F(Opening, AFolderIsNoProject) {
    EXPECT_EQ(refusal(folder_.path()), "'" + folder_.path() + "' is a folder, not a project file.");
}

TEST_F(Opening, AFileOfAnotherKindIsNoProject) {
    const std::string text =
        write("text.hxs", "This is no database, but it is long enough to be taken for the start of one.");
    EXPECT_EQ(refusal(text), "The file '" + text + "' is not a project file.");
    const std::string empty = write("empty.hxs", "");
    EXPECT_EQ(refusal(empty), "The file '" + empty + "' is not a project file.");
    const std::string jet = write("jet.hxs", std::string("\0\1\0\0Standard Jet DB\0\0", 21) + std::string(4096, 'x'));
    EXPECT_EQ(refusal(jet), "The project '" + jet +
                                "' is a Jet 3 database, which this program does not read. The studio that made it can "
                                "convert it.");
}

TEST_F(Opening, AnotherProgramsDatabaseIsNoProject) {
    const std::string path = folder_.file("other.hxs");
    RawFile(path).run("CREATE TABLE TrcpRecipe (ID INTEGER PRIMARY KEY)");
    EXPECT_EQ(refusal(path), "The file '" + path + "' is not a project file.");
}

TEST_F(Opening, ANewerProjectIsRefused) {
    RawFile(path_).run("PRAGMA user_version=2");
    EXPECT_EQ(refusal(path_),
              "The project '" + path_ + "' was made by a newer program (format 2; this program reads up to format 1).");
}

TEST_F(Opening, ALockedFileIsRefusedAfterAWhile) {
    RawFile other(path_);
    other.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(refusal(path_), "The file '" + path_ + "' is locked by another program.");
}

TEST_F(Opening, ADamagedFileSaysSo) {
    std::fstream file(path_, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(100);
    file << std::string(200, '\xFF');
    file.close();
    EXPECT_EQ(refusal(path_), "The file '" + path_ + "' is damaged.");
}

// Makes a page of a project unreadable.
void damage(const std::string& path, const std::string& tableOrIndex) {
    const std::string page =
        RawFile(path).query("SELECT (rootpage - 1) * 4096 FROM sqlite_schema WHERE name = '" + tableOrIndex + "'");
    std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(std::stol(page));
    file << std::string(16, '\xFF');
}

TEST_F(Opening, AFileThatIsDamagedInTheMiddleSaysSo) {
    RawFile(path_).run("INSERT INTO TrcpRecipeMember (ParentID) VALUES (1)");
    damage(path_, "IrcpRecipeMember_ChildID");
    EXPECT_TRUE(refusal(path_).starts_with("The file '" + path_ + "' is damaged: ")) << refusal(path_);
}

TEST_F(Opening, ADamagedFileIsStillRead) {
    RawFile(path_).run("INSERT INTO TrcpRecipe (Name) VALUES ('A')");
    damage(path_, "IrcpRecipeMember_ChildID");
    EXPECT_EQ(column(*open(connect("Read"), "TrcpRecipe"), "Name"), "A");
}

TEST_F(Opening, ALargeFileThatIsDamagedWhereItsRecipesAreSaysSo) {
    const auto refusalOfLarge = [this] {
        Database database(path_);
        try {
            requireUndamaged(database, 4096);
        } catch (const automation::Error& error) {
            return error.description();
        }
        return std::string();
    };
    ASSERT_GT(fs::file_size(path_), 4096U);
    damage(path_, "ThxVariable");
    EXPECT_EQ(refusalOfLarge(), "") << "the rest of it is not read";
    damage(path_, "TrcpRecipe");
    EXPECT_TRUE(refusalOfLarge().starts_with("The file '" + path_ + "' is damaged: ")) << refusalOfLarge();
}

TEST_F(Opening, AProjectThatBreaksARuleOfItsTablesIsNotDamaged) {
    RawFile(path_).run(
        "INSERT INTO TrcpRecipe (Name) VALUES ('A'); PRAGMA writable_schema=ON;"
        "UPDATE sqlite_schema SET sql = replace(sql, 'Comment        VARCHAR(255)', 'Comment VARCHAR(255) NOT NULL') "
        "WHERE name = 'TrcpRecipe'; UPDATE TrcpRecipe SET Comment = NULL;");
    EXPECT_EQ(column(*open(connect(), "TrcpRecipe"), "Name"), "A");
}

TEST_F(Opening, WhatIsNoTableInThePlaceOfOneIsRefused) {
    for (const std::string table : {"TrcpRecipe", "TrcpRecipeMember", "ThxVariable"}) {
        const std::string path = folder_.file(table + ".hxs");
        createProject(path);
        RawFile(path).run(
            "DROP TABLE " + table + "; CREATE VIEW " + table +
            " AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) SELECT i AS ID, i AS Name FROM n");
        EXPECT_EQ(refusal(path), "The project '" + path + "' cannot be used: \"" + table + "\" in it is no table.");
    }
}

TEST_F(Opening, ATableWithATriggerIsRefused) {
    RawFile(path_).run("CREATE TRIGGER Mine AFTER INSERT ON trcprecipe BEGIN DELETE FROM TrcpRecipeMember; END");
    EXPECT_EQ(refusal(path_), "The project '" + path_ +
                                  "' cannot be used: its table \"TrcpRecipe\" has the trigger \"Mine\", which this "
                                  "program does not run.");
}

TEST_F(Opening, ViewsAndTriggersElsewhereAreNoMatter) {
    RawFile(path_).run(
        "CREATE TABLE Other (A); CREATE VIEW Names AS SELECT Name FROM TrcpRecipe;"
        "CREATE TRIGGER Mine AFTER INSERT ON Other BEGIN INSERT INTO Other VALUES (2); END");
    EXPECT_EQ(column(*open(connect(), "TrcpRecipe"), "Name"), "");
}

TEST_F(Opening, WithoutPermissionItSaysSo) {
    std::filesystem::permissions(path_, std::filesystem::perms::none);
    if (std::ifstream(path_).is_open()) GTEST_SKIP() << "this user may read every file";
    ado::Connection connection(provider_);
    const auto error = errorOf([&] { connection.open("Data Source=" + path_); });
    EXPECT_EQ(error.description(), "No permission to read the file '" + path_ + "'.");
}

TEST_F(Opening, AFileIsFoundWhateverItsNameLooksLike) {
    for (const char* name : {"Anlage Süd.hxs", "file:x?mode=memory", "O'Brien \"2\".hxs", "100%.hxs"}) {
        const std::string path = folder_.file(name);
        createProject(path);
        ado::Connection connection(provider_);
        connection.open("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + path + ";Mode=Read|Write|Share Deny None;");
        EXPECT_EQ(connection.state(), ado::adStateOpen) << name;
    }
}

TEST_F(Opening, SeveralConnectionsShareAFile) {
    const auto one = connect();
    const auto two = connect();
    open(one, "TrcpRecipe")->addNew(Values{{"Name", "A"}});
    const auto recordset = open(two, "TrcpRecipe");
    recordset->addNew(Values{{"Name", "B"}});
    EXPECT_EQ(column(*open(one, "TrcpRecipe"), "Name"), "A,B");
}

TEST_F(Opening, AWriteProtectedFileCanBeReadButNotWritten) {
    open(connect(), "TrcpRecipe")->addNew(Values{{"Name", "A"}});
    const auto connection = connect("Read|Share Deny None");
    const auto recordset = open(connection, "TrcpRecipe");
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    const auto error = errorOf([&] { recordset->addNew(Values{{"Name", "B"}}); });
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_EQ(error.description(), "The file '" + path_ + "' is write-protected.");
    EXPECT_EQ(column(*recordset, "Name"), "A");
}

TEST_F(Opening, AFileThatTheSystemProtectsOpensForReading) {
    open(connect(), "TrcpRecipe")->addNew(Values{{"Name", "A"}});
    std::filesystem::permissions(path_, std::filesystem::perms{0444});
    if (std::ofstream(path_, std::ios::app).is_open()) GTEST_SKIP() << "this user may write every file";
    const auto recordset = open(connect(), "TrcpRecipe");
    EXPECT_EQ(recordset->field("Name").value(), Variant("A"));
    EXPECT_EQ(errorOf([&] { recordset->remove(); }).description(), "The file '" + path_ + "' is write-protected.");
}

TEST_F(Opening, AWriteWaitsForAnotherProgramAndThenSaysThatTheFileIsLocked) {
    const auto recordset = open(connect(), "TrcpRecipe");
    recordset->addNew(Values{{"Name", "A"}});
    RawFile other(path_);
    other.run("BEGIN IMMEDIATE");
    recordset->field("Name").setValue("B");
    const auto error = errorOf([&] { recordset->update(); });
    EXPECT_EQ(error.description(), "The file '" + path_ + "' is locked by another program.");
    EXPECT_EQ(recordset->editMode(), ado::adEditInProgress);
    other.run("COMMIT");
    recordset->update();
    EXPECT_EQ(other.query("SELECT Name FROM TrcpRecipe"), "B");
}

}  // namespace

}  // namespace hx::sqlite
