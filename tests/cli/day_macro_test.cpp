// SPDX-License-Identifier: MIT

// A whole day's work in the editor: the macro checks the database after each step, the tests look from outside.
#include <gmock/gmock.h>

#include "run_cli.h"

namespace hx::cli {

namespace {

using testing::HasSubstr;

constexpr const char* macro = HX_SAMPLES_FOLDER "/../tests/cli/macros/day.lua";

class DayMacro : public CliTest {
  protected:
    /// On a new project, or on the empty one that is there.
    Result day(const char* language, const char* last = nullptr, bool isThere = false) {
        const std::string folder = std::filesystem::path(folder_.path()).make_preferred().string();
        std::vector<const char*> arguments{"run", "--folder", folder.c_str(), "--lcid", language};
        if (isThere) arguments.insert(arguments.end(), {"--project", project_.c_str()});
        arguments.insert(arguments.end(), {macro, folder.c_str()});
        if (last != nullptr) arguments.push_back(last);
        return hxrecipe(arguments);
    }
    Result jetDay(const char* language) {
        EXPECT_EQ(hxrecipe({"new", "--format", "jet", project_.c_str()}).status, 0);
        return day(language, nullptr, true);
    }
    void requireDatabase() {
        EXPECT_EQ(query(project_,
                        "SELECT ID, Name, VarRecipeName, FilePath, FileExtension, Enabled, Comment, "
                        "StandardValue, VarSetValue, Options FROM TrcpRecipe ORDER BY ID"),
                  "1|Cola|Start|<ProjectDir>\\Rezepte|re|True|kühl|2.5|Start|2,3|Fill||||False||0||0");
        EXPECT_EQ(query(project_, "SELECT ParentID, VarRecipe, ChildID FROM TrcpRecipeMember ORDER BY ID"),
                  "1|Pump|0,1|Name.Cola|3");
        EXPECT_EQ(query(project_, "SELECT COUNT(*) FROM ThxVariable"), "8");
    }
    const std::string project_ = folder_.file("day.hxs");
};

constexpr const char* steps =
    "new project\nvariables\nopen the editor\nthree recipes\nedits of recipes\nedits that are not taken\n"
    "variables of a recipe\nedits in the grid\norder and layout of the grid\nsub-recipes\nedits of sub-recipes\ncycle\n"
    "deletes of members\noptions\ndeletes of recipes\ntool bar\nstatistic\nsibling add-ins\nshow the editor\n"
    "keys of the explorer\nrefresh\nclose\nreopen\noptions that are not saved\nclose for the day\n";

TEST_F(DayMacro, GoesWellInBothLanguages) {
    for (const char* language : {"1031", "1033"}) {
        const Result result = day(language);
        EXPECT_EQ(result.status, 0) << language;
        EXPECT_EQ(result.problems, "") << language;
        EXPECT_EQ(result.results, steps) << language;
        std::filesystem::remove(project_);
        std::filesystem::remove(folder_.file("HXEditors.ini"));
    }
}

TEST_F(DayMacro, LeavesTheDatabaseThatItHasWorkedFor) {
    ASSERT_EQ(day("1031").status, 0);
    requireDatabase();
    const std::string settings = contents(folder_.file("HXEditors.ini"));
    for (const char* line : {"Me.Font.Name=Courier New", "tdbRM.Columns(\"VarRecipe\").Width=2000",
                             "tdbRM.Columns(\"ChildID\").Visible=False", "SaveOnExit=False", "RequestOnDelete=False"}) {
        EXPECT_THAT(settings, HasSubstr(line));
    }
    std::vector<std::string> files = filesInFolder();
    std::ranges::sort(files);
    EXPECT_EQ(files, (std::vector<std::string>{"HXEditors.ini", "day.hxs"}));
}

TEST_F(DayMacro, GoesWellOnAJetProject) {
    for (const char* language : {"1031", "1033"}) {
        const Result result = jetDay(language);
        EXPECT_EQ(result.problems, "") << language;
        EXPECT_EQ(result.results, steps) << language;
        requireDatabase();
        EXPECT_TRUE(sqlite::beginsLikeJet(project_));
        const Result checked = hxrecipe({"check", project_.c_str()});
        EXPECT_EQ(checked.status, 0) << checked.results;
        std::filesystem::remove(project_);
        std::filesystem::remove(folder_.file("HXEditors.ini"));
    }
}

TEST_F(DayMacro, LeavesAProjectThatIsInOrder) {
    ASSERT_EQ(day("1031").status, 0);
    const Result result = hxrecipe({"check", project_.c_str()});
    EXPECT_EQ(result.status, 0) << result.results;
}

// The editor stores a cycle without a word; a check says what is wrong with it.
TEST_F(DayMacro, HasACycleThatTheCheckRefuses) {
    const Result result = day("1033", "cycle");
    EXPECT_EQ(result.status, 0) << result.problems;
    EXPECT_THAT(result.results, testing::EndsWith("\ncycle\n"));
    const Result checked = hxrecipe({"check", project_.c_str()});
    EXPECT_EQ(checked.status, 1);
    EXPECT_THAT(checked.results, HasSubstr("The recipe contains itself: \"Cola\" > "));
}

TEST_F(DayMacro, DoesNotBeginOnAProjectThatIsThere) {
    ASSERT_EQ(day("1031", "variables").status, 0);
    const Result again = day("1031");
    EXPECT_EQ(again.status, 1);
    EXPECT_THAT(again.problems, HasSubstr("exists already"));
}

}  // namespace

}  // namespace hx::cli
