// SPDX-License-Identifier: MIT
#include "project/recipe_writer.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/sqlite/database.h"
#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "automation/convert.h"
#include "project/reader.h"
#include "project/schema.h"
#include "support/temporary_folder.h"

namespace hx::project {
namespace {

using Texts = std::vector<std::string>;
using Ids = std::vector<std::int64_t>;

/// "Cola" (1) of two variables; "Linie" (2), which includes it and "Spülen" (3); that includes "Cola" too.
class RecipeWriterTest : public testing::TestWithParam<sqlite::ProjectFormat> {
  protected:
    RecipeWriterTest() {
        sqlite::createProject(path, GetParam());
        session = provider.connect("Data Source=\"" + path + "\";Mode=Read|Write|Share Deny None;");
        run("INSERT INTO TrcpRecipe (Name, Comment) VALUES ('Cola', 'süß')");
        run("INSERT INTO TrcpRecipe (Name) VALUES ('Linie')");
        run("INSERT INTO TrcpRecipe (Name) VALUES ('Spülen')");
        for (const char* row : {"1, 0, 'Mischer.Zucker'", "2, 1, 'Datei.Cola'", "1, 0, 'Mischer.Wasser'",
                                "2, 3, 'Datei.Spuelen'", "2, 0, 'Linie.Ein'", "3, 1, 'Datei.Cola'"})
            run(std::string("INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (") + row + ")");
    }
    void run(const std::string& command) { (void)session->open(command, ado::adCmdText); }
    [[nodiscard]] Texts names() {
        Texts names;
        for (const RecipeEntry& recipe : reader().recipes()) names.push_back(recipe.name);
        return names;
    }
    /// "0 Mischer.Zucker" for a variable, "1 Datei.Cola" for a sub-recipe.
    [[nodiscard]] Texts members(std::int64_t recipe) {
        Texts members;
        using namespace schema::member;
        reader().read(
            schema::memberTable, std::array{childId, varRecipe},
            [&](Row row) { members.push_back(std::to_string(row[0].integer) + " " + std::string(row[1].text)); },
            "ParentID = " + std::to_string(recipe));
        return members;
    }
    [[nodiscard]] Reader reader() { return {session, path}; }

    support::TemporaryFolder folder;
    std::string path = folder.file("Anlage.hxs");
    sqlite::Provider provider;
    std::shared_ptr<ado::Session> session;
};

TEST_P(RecipeWriterTest, CopiesAllOfARecipeUnderTheNextFreeName) {
    RecipeWriter writer(*session);
    EXPECT_EQ(writer.copy(Ids{1}, SubRecipes::shared), Ids{4});
    EXPECT_EQ(writer.copy(Ids{1, 4}, SubRecipes::shared), (Ids{5, 6}));
    EXPECT_EQ(names(), (Texts{"Cola", "Linie", "Spülen", "Cola(2)", "Cola(3)", "Cola(4)"}));
    EXPECT_EQ(members(6), (Texts{"0 Mischer.Zucker", "0 Mischer.Wasser"}));
    std::string comment;
    reader().read(
        schema::recipeTable, std::array{schema::recipe::comment}, [&](Row row) { comment = row[0].text; }, "ID = 6");
    EXPECT_EQ(comment, "süß");
}

TEST_P(RecipeWriterTest, ACopySharesItsSubRecipesOrHasCopiesOfThem) {
    RecipeWriter writer(*session);
    EXPECT_EQ(writer.copy(Ids{2}, SubRecipes::shared), Ids{4});
    EXPECT_EQ(members(4), (Texts{"1 Datei.Cola", "3 Datei.Spuelen", "0 Linie.Ein"}));
    EXPECT_EQ(writer.copy(Ids{2}, SubRecipes::copied), (Ids{5, 6, 7}));
    EXPECT_EQ(names(), (Texts{"Cola", "Linie", "Spülen", "Linie(2)", "Linie(3)", "Cola(2)", "Spülen(2)"}));
    EXPECT_EQ(members(5), (Texts{"6 Datei.Cola", "7 Datei.Spuelen", "0 Linie.Ein"}));
    EXPECT_EQ(members(7), Texts{"6 Datei.Cola"});
    EXPECT_EQ(members(3), Texts{"1 Datei.Cola"});
}

TEST_P(RecipeWriterTest, CopiesARecipeThatIncludesItselfAndLeavesOutWhatIsGone) {
    run("INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (3, 3, '')");
    RecipeWriter writer(*session);
    EXPECT_EQ(writer.copy(Ids{3, 99}, SubRecipes::copied), (Ids{4, 5}));
    EXPECT_EQ(members(4), (Texts{"5 Datei.Cola", "4 "}));
}

TEST_P(RecipeWriterTest, CutsALongNameSoThatItsNumberFits) {
    std::string name;
    for (int i = 0; i < 25; ++i) name += "ä1";
    run("UPDATE TrcpRecipe SET Name = '" + name + "' WHERE ID = 1");
    (void)RecipeWriter(*session).copy(Ids{1}, SubRecipes::shared);
    const std::string copy = names().back();
    EXPECT_TRUE(copy.ends_with("(2)")) << copy;
    EXPECT_TRUE(name.starts_with(copy.substr(0, copy.size() - 3))) << copy;
}

TEST_P(RecipeWriterTest, DeletesRecipesWithTheirMembersAndNoOthers) {
    RecipeWriter(*session).remove(Ids{1, 3});
    EXPECT_EQ(names(), Texts{"Linie"});
    EXPECT_EQ(members(1), Texts());
    EXPECT_EQ(members(2), (Texts{"1 Datei.Cola", "3 Datei.Spuelen", "0 Linie.Ein"}));
}

TEST_P(RecipeWriterTest, MakesRecipesWithVariablesAllOrNone) {
    RecipeWriter writer(*session);
    EXPECT_EQ(writer.create(std::vector<NewRecipe>{{"Tank 1", {"Tank1.Soll", "Tank1.Zeit"}}, {"Tank 2", {}}}),
              (Ids{4, 5}));
    EXPECT_EQ(members(4), (Texts{"0 Tank1.Soll", "0 Tank1.Zeit"}));
    try {
        (void)writer.create(std::vector<NewRecipe>{{"Tank 3", {}}, {"COLA", {}}});
        ADD_FAILURE() << "the name is taken";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(automation::Language::german),
                  "Ein Rezept „COLA“ gibt es schon. Es wurde nichts geändert.");
    }
    EXPECT_EQ(names().size(), 5U);
    writer.addVariables(1, Texts{"Neu"});
    EXPECT_EQ(members(1), (Texts{"0 Mischer.Zucker", "0 Mischer.Wasser", "0 Neu"}));
}

INSTANTIATE_TEST_SUITE_P(Formats, RecipeWriterTest,
                         testing::Values(sqlite::ProjectFormat::sqlite, sqlite::ProjectFormat::jet),
                         [](const auto& format) {
                             return format.param == sqlite::ProjectFormat::jet ? "Jet" : "SQLite";
                         });

}  // namespace
}  // namespace hx::project
