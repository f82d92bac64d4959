// SPDX-License-Identifier: MIT
#include "project/check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "project/where_used.h"
#include "support/temporary_folder.h"

namespace hx::project {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WholeProject : public testing::Test {
  protected:
    /// A reader of a new project with these rows; V and F are in its variable list.
    Reader& with(const std::string& sql) {
        sqlite::createProject(path_);
        sqlite::Database(path_).execute("INSERT INTO ThxVariable (Name) VALUES ('V'), ('F');" + sql);
        return reader_.emplace(provider_, path_);
    }
    static std::vector<std::string> findingsOf(Reader& reader) {
        std::vector<std::string> findings;
        Check(reader, [&](const Finding& finding) {
            const std::string recipe = finding.recipe == nullptr ? "-" : finding.recipe->name;
            findings.push_back(std::string(finding.kind) + " " + recipe + " " +
                               std::to_string(finding.member.value_or(0)));
        }).run();
        return findings;
    }

    support::TemporaryFolder folder_;
    std::string path_ = folder_.file("plant.hxs");
    sqlite::Provider provider_;
    std::optional<Reader> reader_;
};

constexpr const char* someRecipes =
    "INSERT INTO TrcpRecipe (Name, VarLoad) VALUES ('A', 'V'), ('B', ''), ('C', NULL);"
    "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES ";

TEST_F(WholeProject, ThatIsSoundHasNoFindings) {
    EXPECT_THAT(findingsOf(with(std::string(someRecipes) + "(1, 0, 'v'), (1, 2, 'F'), (2, 3, 'F')")), IsEmpty());
}

TEST_F(WholeProject, TellsWhatIsWrongAndWhere) {
    EXPECT_THAT(
        findingsOf(with(std::string(someRecipes) + "(1, 0, 'X'), (1, 9, 'F'), (2, 3, ' '), (3, 2, 'F'), (8, 0, 'V')")),
        ElementsAre("unknown-variable A 1", "missing-sub-recipe A 2", "no-file-name B 3", "no-recipe - 5",
                    "cycle B 0"));
}

TEST_F(WholeProject, ComparesMembersBeyondThoseThatAreLookedUpTogether) {
    std::string rows = someRecipes;
    for (int i = 0; i < 100; ++i) rows += "(1, 0, 'V" + std::to_string(i) + "'), ";
    EXPECT_EQ(findingsOf(with(rows + "(1, 0, 'V')")).size(), 100U);
}

std::string textOf(const Reference& reference) {
    constexpr const char* kinds[] = {"column", "variable", "file-name", "sub-recipe", "indirect"};
    return std::string(kinds[static_cast<int>(reference.kind)]) + " " + std::to_string(reference.recipe) + " " +
           std::to_string(reference.member) + " " + std::string(reference.column) + std::to_string(reference.other);
}

std::vector<std::string> textsOf(const WhereUsed& used) {
    std::vector<std::string> texts;
    for (const Reference& reference : used.references()) texts.push_back(textOf(reference));
    return texts;
}

TEST_F(WholeProject, KnowsWhereAVariableIsUsedThroughSubRecipesToo) {
    const WhereUsed used(with(std::string(someRecipes) + "(2, 0, 'v'), (1, 2, 'F'), (3, 1, 'V'), (2, 0, '')"), "v");
    EXPECT_EQ(used.recipe(), std::nullopt);
    EXPECT_THAT(textsOf(used), ElementsAre("column 1 0 VarLoad0", "variable 2 1 0", "file-name 3 3 1"));
}

TEST_F(WholeProject, KnowsWhereARecipeIsUsed) {
    const WhereUsed used(with(std::string(someRecipes) + "(2, 3, 'F'), (1, 2, 'F')"), "c");
    EXPECT_EQ(used.recipe(), 2U);
    EXPECT_THAT(textsOf(used), ElementsAre("sub-recipe 2 1 3", "indirect 1 0 2"));
}

TEST_F(WholeProject, KnowsWhereOneRecipeIsUsedWhateverElseHasItsName) {
    Reader& reader = with(std::string(someRecipes) + "(2, 3, 'F'), (1, 2, 'F'), (1, 0, 'C')");
    const WhereUsed used(reader, 3);
    EXPECT_EQ(used.recipe(), 2U);
    EXPECT_THAT(textsOf(used), ElementsAre("sub-recipe 2 1 3", "indirect 1 0 2"));
    EXPECT_FALSE(WhereUsed(reader, 9).isKnown());
}

TEST_F(WholeProject, TellsItInGermanWithTheCaptionsOfTheDialogs) {
    Reader& reader = with(
        "INSERT INTO TrcpRecipe (Name, VarLoad) VALUES ('A', 'X');"
        "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (1, 0, 'Y'), (1, 1, 'Z')");
    std::vector<std::string> told;
    Check check(
        reader,
        [&](const Finding& finding) {
            told.push_back(finding.problem + "|" + std::string(finding.column) + (finding.ofSubRecipe ? "|sub" : ""));
        },
        {automation::Language::german, true});
    check.run();
    EXPECT_THAT(told, ElementsAre("Ladetrigger nennt die Variable „X“, die nicht in der Variablenliste steht.|VarLoad",
                                  "Die Variable „Y“ steht nicht in der Variablenliste.|",
                                  "Die Variable „Z“ steht nicht in der Variablenliste.||sub",
                                  "Das Rezept enthält sich selbst: „A“ > „A“.|"));
    EXPECT_TRUE(check.takeVariables().contains("v"));
}

TEST_F(WholeProject, KnowsWhichNamesItHas) {
    Reader& reader = with(std::string(someRecipes) + "(1, 0, NULL)");
    EXPECT_TRUE(WhereUsed(reader, "f").isKnown());
    EXPECT_TRUE(WhereUsed(reader, "3").isKnown());
    EXPECT_FALSE(WhereUsed(reader, "nobody").isKnown());
    for (const std::string& text : textsOf(WhereUsed(reader, ""))) EXPECT_FALSE(text.starts_with("variable")) << text;
}

}  // namespace
}  // namespace hx::project
