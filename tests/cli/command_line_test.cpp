// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

class CommandLine : public CliTest {};

TEST_F(CommandLine, NewMakesAnEmptyProject) {
    const Result result = hxrecipe({"new", file_.c_str()});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.results, "Made " + file_ + ".\n");
    EXPECT_EQ(result.problems, "");
    EXPECT_EQ(query(file_, "TrcpRecipe"), "");
}

TEST_F(CommandLine, AFileThatExistsStaysAsItIs) {
    write("plant.hxs", "mine");
    for (const auto& arguments : std::vector<std::vector<const char*>>{
             {"new", file_.c_str()}, {"generate", "--recipes", "1", "--members", "1", "--big", "0", file_.c_str()}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.results, "");
        EXPECT_EQ(result.problems, "hxrecipe: The file '" + file_ + "' exists already.\n");
        EXPECT_EQ(std::filesystem::file_size(file_), 4U);
        EXPECT_EQ(filesInFolder().size(), 1U);
    }
}

TEST_F(CommandLine, WrongUsageIsToldApartFromFailure) {
    EXPECT_EQ(hxrecipe({}).status, 2);
    EXPECT_EQ(hxrecipe({"new"}).status, 2);
    EXPECT_EQ(hxrecipe({"destroy", "x"}).status, 2);
    EXPECT_EQ(hxrecipe({"new", "a", "b"}).status, 2);
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "x", "--members", "1", "--big", "1", "f"}).status, 2);
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "-1", "--members", "1", "--big", "1", "f"}).status, 2);
    EXPECT_EQ(hxrecipe({"generate", "--recipes", "0", "--members", "1", "--big", "1", "f"}).status, 2);
    EXPECT_NE(hxrecipe({"new"}).problems.find("FILE is required"), std::string::npos);
    EXPECT_EQ(hxrecipe({"new", "/no/such/folder/x.hxs"}).status, 1);
    EXPECT_TRUE(filesInFolder().empty());
}

TEST_F(CommandLine, AnUnknownCommandIsNamed) {
    const std::string rest = ".\nRun with --help for more information.\n";
    for (const auto& arguments : {std::vector<const char*>{"lsit", "a"}, {"variables", "lsit", "a", "b"}}) {
        const Result result = hxrecipe(arguments);
        EXPECT_EQ(result.status, 2);
        EXPECT_EQ(result.problems, "There is no command \"lsit\"" + rest);
    }
    EXPECT_TRUE(hxrecipe({}).problems.ends_with("required" + rest.substr(1)));
    EXPECT_EQ(hxrecipe({"lsit", "--help"}).status, 0);
}

TEST_F(CommandLine, HelpIsNoFailure) {
    const Result result = hxrecipe({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.results.find("generate"), std::string::npos);
    EXPECT_NE(hxrecipe({"generate", "--help"}).results.find("--recipes"), std::string::npos);
}

}  // namespace

}  // namespace hx::cli
