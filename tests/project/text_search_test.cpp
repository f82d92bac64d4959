// SPDX-License-Identifier: MIT
#include "project/text_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "project/replacement.h"
#include "support/temporary_folder.h"

namespace hx::project {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

bool isIn(const char* pattern, const char* text, bool matchCase = false, bool wholeWord = false) {
    return PlainPattern(pattern, matchCase, wholeWord).isIn(text);
}

std::string replaced(const char* pattern, const char* text, const char* with, bool matchCase = false,
                     bool wholeWord = false) {
    return PlainPattern(pattern, matchCase, wholeWord).replaced(text, with);
}

TEST(PlainPattern, IsFoundWhateverItsCaseUnlessThatCounts) {
    EXPECT_TRUE(isIn("FÜLL", "Tank.Füllhöhe"));
    EXPECT_FALSE(isIn("FÜLL", "Tank.Füllhöhe", true));
    EXPECT_TRUE(isIn("Füll", "Tank.Füllhöhe", true));
    EXPECT_FALSE(isIn("", "Tank"));
}

TEST(PlainPattern, IsAWholeWordBetweenWhatBelongsToNone) {
    EXPECT_TRUE(isIn("tank", "Linie.Tank.Ein", false, true));
    EXPECT_FALSE(isIn("tank", "Linie.Tank1", false, true));
    EXPECT_FALSE(isIn("tank", "Tank_Ein", false, true));
    EXPECT_FALSE(isIn("tank", "Öltank", false, true));
    EXPECT_FALSE(isIn("l", "Öl", false, true));
    EXPECT_TRUE(isIn("tank", "Tank1 Tank", false, true));
}

TEST(PlainPattern, IsReplacedInAllItsPlaces) {
    EXPECT_EQ(replaced("tank", "Tank.tank.TANK", "K"), "K.K.K");
    EXPECT_EQ(replaced("tank", "Tank.tank", "K", true), "Tank.K");
    EXPECT_EQ(replaced("tank", "Tank Tank1", "K", false, true), "K Tank1");
    EXPECT_EQ(replaced("aa", "aaa", "a"), "aa");
    EXPECT_EQ(replaced("tank", "Tank", ""), "");
}

TEST(PlainPattern, KeepsWhatStandsAroundItWhateverItsLettersTake) {
    EXPECT_EQ(replaced("ß", "STRAẞE ẞ", "ss"), "STRAssE ss");  // a capital that is longer than the small letter
    EXPECT_EQ(replaced("x", "ẞX\xFF!", "y"), "ẞy\xFF!");
}

class ProjectTexts : public testing::Test {
  protected:
    void SetUp() override {
        sqlite::createProject(path_);
        sqlite::Database(path_).execute(
            "INSERT INTO ThxVariable (Name, Comment) VALUES ('Tank.Ein', 'schaltet den Tank'), ('Pumpe', NULL);"
            "INSERT INTO TrcpRecipe (Name, Comment, VarLoad) VALUES ('Tank A', 'alt', 'Pumpe'), ('B', 'Tank', "
            "'Tank.Laden');"
            "INSERT INTO TrcpRecipeMember (ParentID, ChildID, VarRecipe) VALUES (2, 0, 'Tank.Ein'), (1, 0, 'Pumpe'), "
            "(1, 2, 'Tank.Datei'), (9, 0, 'Tank');");
    }
    [[nodiscard]] TextSearch search(const char* text, SearchScope scope = {}) {
        Reader reader(provider_, path_);
        PlainPattern pattern(text, false, false);
        return {reader, pattern, scope};
    }
    [[nodiscard]] static std::vector<std::string> textsOf(const TextSearch& search) {
        std::vector<std::string> texts;
        for (const TextHit& hit : search.hits()) {
            texts.push_back(std::to_string(hit.recipe) + " " + std::string(hit.where().name) + " " +
                            std::to_string(hit.row) + (hit.ofSubRecipe ? " sub " : " ") +
                            std::string(search.text(hit)));
        }
        return texts;
    }
    void replace(const std::vector<Replacement>& replacements) {
        const auto session = provider_.connect("Data Source=\"" + path_ + "\";Mode=Read|Write;");
        replaceTexts(*session, replacements);
    }
    [[nodiscard]] std::string refusalOf(const std::vector<Replacement>& replacements) {
        try {
            replace(replacements);
            return {};
        } catch (const automation::Error& error) {
            return error.description();
        }
    }
    /// Of the recipe's name.
    static Replacement rename(std::int64_t recipe, const char* before, std::string after) {
        return {&searchedColumns.front(), recipe, before, std::move(after)};
    }
    [[nodiscard]] std::vector<std::string> names() {
        std::vector<std::string> result;
        for (const RecipeEntry& recipe : Reader(provider_, path_).recipes()) result.push_back(recipe.name);
        return result;
    }

    support::TemporaryFolder folder_;
    std::string path_ = folder_.file("plant.hxs");
    sqlite::Provider provider_;
};

TEST_F(ProjectTexts, AreFoundRecipeByRecipeAndInTheVariableList) {
    EXPECT_THAT(textsOf(search("TANK")),
                ElementsAre("1 Name 1 Tank A", "1 VarRecipe 3 sub Tank.Datei", "2 Comment 2 Tank",
                            "2 VarLoad 2 Tank.Laden", "2 VarRecipe 1 Tank.Ein", "9 VarRecipe 4 Tank",
                            "0 Name 1 Tank.Ein", "0 Comment 1 schaltet den Tank"));
    EXPECT_THAT(textsOf(search("nirgends")), IsEmpty());
}

TEST_F(ProjectTexts, AreFoundWhereTheyAreLookedFor) {
    EXPECT_EQ(search("tank", {true, false, false}).hits().size(), 3U);
    EXPECT_EQ(search("tank", {false, true, false}).hits().size(), 3U);
    EXPECT_EQ(search("tank", {false, false, true}).hits().size(), 2U);
}

TEST_F(ProjectTexts, AreReplacedInAllTables) {
    const TextSearch found = search("pumpe");
    std::vector<Replacement> replacements;
    for (const TextHit& hit : found.hits()) replacements.push_back({&hit.where(), hit.row, "Pumpe", "Ventil"});
    ASSERT_EQ(replacements.size(), 3U);
    replace(replacements);
    EXPECT_THAT(textsOf(search("ventil")),
                ElementsAre("1 VarLoad 1 Ventil", "1 VarRecipe 2 Ventil", "0 Name 2 Ventil"));
    EXPECT_THAT(textsOf(search("pumpe")), IsEmpty());
}

TEST_F(ProjectTexts, AreReplacedAllOrNone) {
    EXPECT_EQ(refusalOf({rename(1, "Tank A", "C"), rename(2, "Tank B", "D")}),
              "“Tank B” cannot become “D”: it has been changed meanwhile. Nothing was replaced.");
    EXPECT_THAT(names(), ElementsAre("Tank A", "B"));
}

TEST_F(ProjectTexts, NamesAreNeitherEmptyNorTwiceNorTooLong) {
    EXPECT_THAT(refusalOf({rename(2, "B", " ")}), HasSubstr("a name is needed"));
    EXPECT_THAT(refusalOf({rename(2, "B", "tank a")}), HasSubstr("the name is there already"));
    EXPECT_THAT(refusalOf({rename(2, "B", std::string(10'000, 'x'))}), HasSubstr("characters are possible"));
    EXPECT_THAT(names(), ElementsAre("Tank A", "B"));
}

TEST_F(ProjectTexts, ANameIsFreeOnceItsRowHasAnother) {
    replace({rename(1, "Tank A", "B"), rename(2, "B", "C")});
    EXPECT_THAT(names(), ElementsAre("B", "C"));
}

}  // namespace
}  // namespace hx::project
