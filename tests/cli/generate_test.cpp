// SPDX-License-Identifier: MIT
#include <set>

#include "cli/progress.h"
#include "project/generated_names.h"
#include "run_cli.h"

namespace hx::cli {

namespace {

class Generate : public CliTest {};

TEST_F(Generate, WritesAsManyRowsAsAskedFor) {
    const Result result =
        hxrecipe({"generate", "--recipes", "50", "--members", "450", "--big", "1000", file_.c_str()}, true);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.problems, "");
    EXPECT_EQ(result.results, "Made " + file_ + ": 51 recipes, 1450 members.\nRecipe 1 has 1000 members.\n");
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM TrcpRecipe"), "51");
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM TrcpRecipeMember WHERE ParentID = 1"), "1000");
    EXPECT_EQ(query(file_,
                    "SELECT MIN(N), MAX(N), COUNT(*) FROM (SELECT COUNT(*) AS N FROM TrcpRecipeMember WHERE "
                    "ParentID > 1 GROUP BY ParentID)"),
              "9|9|50");
    EXPECT_EQ(
        query(file_, "SELECT COUNT(*) FROM TrcpRecipeMember WHERE VarRecipe NOT IN (SELECT Name FROM ThxVariable)"),
        "0");
}

TEST_F(Generate, TheBigRecipesMembersStandInBlocksWithGapsBetween) {
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "10", "--members", "900", "--big", "1000", file_.c_str()}).status, 0);
    const std::string gaps = query(file_,
                                   "SELECT COUNT(*) FROM TrcpRecipeMember a, TrcpRecipeMember b WHERE a.ParentID = 1 "
                                   "AND b.ID = a.ID + 1 AND b.ParentID <> 1");
    EXPECT_GE(std::stoi(gaps), 25);
    EXPECT_EQ(query(file_, "SELECT COUNT(*) FROM TrcpRecipeMember"), "1900");
}

TEST_F(Generate, NothingIsAProjectToo) {
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "0", "--members", "0", "--big", "0", file_.c_str()}).status, 0);
    EXPECT_EQ(query(file_, "TrcpRecipe"), "");
    EXPECT_EQ(query(file_, "ThxVariable"), "");
}

TEST_F(Generate, TheProjectIsLikeANewOne) {
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "5", "--members", "5", "--big", "5", file_.c_str()}).status, 0);
    const std::string empty = folder_.file("empty.hxs");
    EXPECT_EQ(hxrecipe({"new", empty.c_str()}).status, 0);
    const std::string schema = "SELECT type, name, sql FROM sqlite_schema ORDER BY name";
    EXPECT_EQ(query(file_, schema), query(empty, schema));
    EXPECT_EQ(filesInFolder().size(), 2U);
}

TEST_F(Generate, NamesAreDifferent) {
    std::set<std::string> recipes;
    std::set<std::string> variables;
    for (int i = 0; i < 5000; ++i) {
        recipes.insert(project::recipeName(i));
        variables.insert(project::variableName(i));
    }
    EXPECT_EQ(recipes.size(), 5000U);
    EXPECT_EQ(variables.size(), 5000U);
    EXPECT_EQ(project::recipeName(0), "Apfelsaft naturtrüb 0,33 l Nr. 1");
    EXPECT_EQ(project::variableName(0), "Sirupraum1.Temperatur.Soll");
}

TEST_F(Generate, AProgressBarAppearsOnLongWorkOnATerminalOnly) {
    for (const bool terminal : {false, true}) {
        std::ostringstream results;
        std::ostringstream problems;
        const Output output{results, problems, terminal};
        Progress::Clock::time_point now;
        {
            Progress progress(output, [&now] { return now; });
            now += std::chrono::milliseconds(499);
            progress.reach(50, 200);
            EXPECT_EQ(problems.str(), "");
            now += std::chrono::milliseconds(1);
            progress.reach(100, 200);
        }
        const std::string bar = "\r[####################....................] 50 %";
        EXPECT_EQ(problems.str(), terminal ? bar + "\r\x1B[K" : "");
    }
}

TEST_F(Generate, AProgressBarIsFullWhenThereIsMoreThanExpected) {
    std::ostringstream results;
    std::ostringstream problems;
    const Output output{results, problems, true};
    Progress::Clock::time_point now;
    Progress progress(output, [&now] { return now; });
    now += std::chrono::seconds(1);
    progress.reach(300, 200);
    EXPECT_EQ(problems.str(), "\r[########################################] 100 %");
}

TEST_F(Generate, ProgressTellsRowsWhileNobodyKnowsHowMany) {
    std::ostringstream results;
    std::ostringstream problems;
    const Output output{results, problems, true};
    Progress::Clock::time_point now;
    Progress progress(output, [&now] { return now; });
    now += std::chrono::seconds(1);
    for (std::int64_t rows = 1; rows < 30'000; ++rows) progress.reach(rows, 0);
    EXPECT_EQ(problems.str(), "\r1 rows\r10001 rows\r20001 rows");
    progress.reach(1, 2);
    EXPECT_TRUE(problems.str().ends_with("] 50 %"));
    progress.reach(5, 0);
    EXPECT_TRUE(problems.str().ends_with("\r5 rows\x1B[K"));
}

}  // namespace

}  // namespace hx::cli
