// SPDX-License-Identifier: MIT
#include "run_cli.h"

namespace hx::cli {

namespace {

class BeverageLine : public CliTest {
  protected:
    static constexpr const char* sample = HX_SAMPLES_FOLDER "/getraenkelinie";

    BeverageLine() { makeSample(sample, file_); }
    int number(const std::string& sql) { return std::stoi(query(file_, sql)); }
};

TEST_F(BeverageLine, IsExportedAsItIsKept) {
    const std::string exported = folder_.file("recipes.json");
    ASSERT_EQ(hxrecipe({"export", file_.c_str(), exported.c_str()}).status, 0);
    EXPECT_TRUE(contents(exported) == contents(std::string(sample) + "/recipes.json"));
}

TEST_F(BeverageLine, IsABelievablePlant) {
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe"), 40);
    EXPECT_GE(number("SELECT COUNT(*) FROM ThxVariable"), 600);
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe WHERE Name LIKE '*''*'"), 1);
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipe WHERE Name LIKE '*ä*' OR Name LIKE '*ö*' OR Name LIKE '*ü*'"), 5);
}

TEST_F(BeverageLine, HasThreeLevelsOfSubRecipes) {
    EXPECT_GE(number("SELECT COUNT(*) FROM TrcpRecipeMember a, TrcpRecipeMember b, TrcpRecipeMember c WHERE "
                     "a.ChildID <> 0 AND b.ParentID = a.ChildID AND b.ChildID <> 0 AND c.ParentID = b.ChildID AND "
                     "c.ChildID <> 0 AND a.ParentID <> b.ParentID AND b.ParentID <> c.ParentID AND "
                     "c.ParentID <> a.ParentID"),
              1);
}

TEST_F(BeverageLine, RefersOnlyToWhatExists) {
    EXPECT_EQ(number("SELECT COUNT(*) FROM TrcpRecipeMember WHERE ChildID <> 0 AND ChildID NOT IN "
                     "(SELECT ID FROM TrcpRecipe)"),
              0);
    EXPECT_EQ(number("SELECT COUNT(*) FROM TrcpRecipeMember WHERE VarRecipe <> '' AND VarRecipe NOT IN "
                     "(SELECT Name FROM ThxVariable)"),
              0);
}

}  // namespace

}  // namespace hx::cli
