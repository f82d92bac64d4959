// SPDX-License-Identifier: MIT

// What counts as changed by another in a file that another program has written.
#include "project_fixture.h"

namespace hx::sqlite {

namespace {

class ForeignValues : public ProjectTest {
  protected:
    // The values that another program has stored, by column.
    void theyStored(const std::string& assignments) {
        RawFile file(path_);
        file.run("INSERT INTO TrcpRecipe (Name) VALUES ('Cola')");
        file.run("UPDATE TrcpRecipe SET " + assignments);
    }
    // Changes each of these columns.
    void change(const Values& values) {
        const auto recipes = open(connect(), "TrcpRecipe");
        for (const auto& [name, value] : values) recipes->field(name).setValue(value);
        recipes->update();
    }
    std::string stored(const std::string& columns) {
        return RawFile(path_).query("SELECT " + columns + " FROM TrcpRecipe");
    }
};

TEST_F(ForeignValues, OfAnotherTypeAreNotChangesOfAnother) {
    theyStored("Enabled = -1, SaveChanges = 'x', StandardValue = '2,5', Options = 3.0, Comment = 7, VarLoad = x'61'");
    change({{"Enabled", false},
            {"SaveChanges", true},
            {"StandardValue", 1.5},
            {"Options", 1},
            {"Comment", "8"},
            {"VarLoad", "b"}});
    EXPECT_EQ(stored("Enabled, SaveChanges, StandardValue, Options, Comment, VarLoad"), "0|1|1.5|1|8|b");
}

TEST_F(ForeignValues, ThatAreBrokenOrHoldAZeroByteCanBeChanged) {
    theyStored("Comment = CAST(x'C328' AS TEXT), VarLoad = 'a' || char(0) || 'b', FilePath = char(0)");
    change({{"Comment", "1"}, {"VarLoad", "2"}, {"FilePath", "3"}});
    EXPECT_EQ(stored("Comment, VarLoad, FilePath"), "1|2|3");
}

TEST_F(ForeignValues, ThatDifferBehindAZeroByteAreChanges) {
    theyStored("VarLoad = 'a' || char(0) || 'b'");
    const auto recipes = open(connect(), "TrcpRecipe");
    recipes->field("VarLoad").setValue("mine");
    RawFile(path_).run("UPDATE TrcpRecipe SET VarLoad = 'a' || char(0) || 'c'");
    EXPECT_EQ(errorOf([&] { recipes->update(); }).number(), ado::dbErrRowChanged);
}

TEST_F(ForeignValues, InATableWithoutAKeyOfItsOwnAreComparedByRow) {
    RawFile(path_).run("CREATE TABLE Notes (Text VARCHAR(20)); INSERT INTO Notes VALUES ('a'), ('b')");
    const auto notes = open(connect(), "Notes");
    notes->moveNext();
    notes->field("Text").setValue("c");
    notes->update();
    notes->field("Text").setValue("d");
    RawFile(path_).run("UPDATE Notes SET Text = 'e' WHERE Text = 'c'");
    EXPECT_EQ(errorOf([&] { notes->update(); }).number(), ado::dbErrRowChanged);
    EXPECT_EQ(RawFile(path_).query("SELECT Text FROM Notes"), "a,e");
}

// While one waits to write, the other stores: the comparison must come after the wait.
TEST_F(ForeignValues, StoredWhileTheUpdateWaitsAreSeen) {
    theyStored("Comment = 'before'");
    const auto recipes = open(connect(), "TrcpRecipe");
    recipes->field("Comment").setValue("mine");
    RawFile other(path_);
    other.run("BEGIN IMMEDIATE; UPDATE TrcpRecipe SET Comment = 'theirs'");
    EXPECT_EQ(errorOf([&] { recipes->update(); }).number(), ado::dbErrUnspecified) << "locked";
    other.run("COMMIT");
    EXPECT_EQ(errorOf([&] { recipes->update(); }).number(), ado::dbErrRowChanged);
    EXPECT_EQ(stored("Comment"), "theirs");
}

TEST_F(ForeignValues, OnAFileForReadingAloneTheRefusalIsTheUsualOne) {
    theyStored("Comment = 'before'");
    const auto recipes = open(connect("Read"), "TrcpRecipe");
    recipes->field("Comment").setValue("mine");
    const auto error = errorOf([&] { recipes->update(); });
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_NE(error.description().find("write-protected"), std::string::npos) << error.description();
}

}  // namespace

}  // namespace hx::sqlite
