// SPDX-License-Identifier: MIT
#include "exchange/content_parser.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "exchange/differences.h"

namespace hx::exchange {
namespace {

class Parsing : public testing::Test {
  protected:
    /// What the parser builds of a text that stands on one line.
    Content parse(const std::string& text) {
        ContentParser parser(path, place);
        Json::sax_parse(text, &parser);
        return parser.finish();
    }
    std::string refusal(const std::string& text) {
        try {
            (void)parse(text);
        } catch (const automation::Error& error) {
            return error.description();
        }
        return "no error";
    }
    static std::string withRecipes(const std::string& recipes) {
        return R"({"format": "hxrecipe", "version": 1, "recipes": [)" + recipes + "]}";
    }

    const std::string path = "plant.json";
    Place place;
};

TEST_F(Parsing, KeepsEveryKindOfValue) {
    const Content content = parse(withRecipes(
        R"({"ID": 3, "Name": "A", "Enabled": true, "Options": 3, "StandardValue": 1.5, "Comment": null,
            "Seal": {"hex": "00fF"}, "members": []})"));
    ASSERT_EQ(content.recipes.size(), 1U);
    const auto& cells = content.recipes[0].cells;
    EXPECT_EQ(content.recipes[0].id, 3);
    EXPECT_EQ(findCell(cells, "enabled")->value, Value(true));
    EXPECT_EQ(findCell(cells, "Options")->value, Value(std::int64_t{3}));
    EXPECT_EQ(findCell(cells, "StandardValue")->value, Value(1.5));
    EXPECT_EQ(findCell(cells, "Comment")->value, Value());
    EXPECT_EQ(findCell(cells, "Seal")->value, Value(Blob{"00FF"}));
    EXPECT_EQ(findCell(cells, "ID"), nullptr);
}

TEST_F(Parsing, TellsSubRecipesFromVariables) {
    const Content content = parse(withRecipes(
        R"({"Name": "A", "members": [{"VarRecipe": "V"}, {"subRecipe": "B"}, {"subRecipe": null, "ChildID": 9}]})"));
    const auto& members = content.recipes.at(0).members;
    ASSERT_EQ(members.size(), 3U);
    EXPECT_FALSE(members[0].isSubRecipe());
    EXPECT_EQ(members[1].childName, "B");
    EXPECT_TRUE(members[2].isSubRecipe());
    EXPECT_EQ(members[2].child, 9);
}

TEST_F(Parsing, NamesTheLineOfWhatIsWrong) {
    place.line = 7;
    EXPECT_EQ(refusal(withRecipes(R"({"Name": ""})")), "plant.json, line 7: \"Name\": a name is expected");
    EXPECT_EQ(refusal(withRecipes(R"({"Name": "A", "ID": 0})")), "plant.json, line 7: \"ID\": no recipe has the ID 0");
    EXPECT_EQ(refusal(withRecipes(R"({"Name": "A", "name": "B"})")), "plant.json, line 7: \"name\" is given twice");
}

TEST_F(Parsing, WantsFormatVersionAndRecipes) {
    EXPECT_EQ(refusal("{}"), "plant.json, line 1: this is no export: \"format\": \"hxrecipe\" is missing");
    EXPECT_EQ(refusal(R"({"format": "hxrecipe"})"), "plant.json, line 1: \"version\" is missing");
    EXPECT_EQ(refusal(R"({"format": "hxrecipe", "version": 1})"), "plant.json, line 1: \"recipes\" is missing");
    EXPECT_EQ(refusal(R"({"format": "hxrecipe", "version": 2})"),
              "plant.json, line 1: \"version\": this program reads version 1 alone");
}

}  // namespace
}  // namespace hx::exchange
