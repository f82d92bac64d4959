// SPDX-License-Identifier: MIT
#include "recipe/node_key.h"

#include <gtest/gtest.h>

namespace hx::recipe {
namespace {

TEST(NodeKey, ThePrefixIsTheFirstFourCharacters) {
    EXPECT_EQ(KeyPrefix("RCPR17"), "RCPR");
    EXPECT_EQ(KeyPrefix("RCPE"), "RCPE");
    EXPECT_EQ(KeyPrefix("RC"), "RC");
    EXPECT_EQ(KeyPrefix(""), "");
}

TEST(NodeKey, OfTheRecipeBranchIsTheRootARecipeOrItsSubRecipes) {
    for (const char* key : {"RCPE", "RCPE0", "RCPR17", "RCPU17"}) EXPECT_TRUE(isRecipeKey(key)) << key;
    for (const char* key : {"", "RCP", "rcpr17", "RCPX17", "VARS1", "HXPROJECT"}) EXPECT_FALSE(isRecipeKey(key)) << key;
}

TEST(NodeKey, TheIdOfARecipeIsTheNumberBehindTheType) {
    EXPECT_EQ(KeyId("RCPR17"), 17);
    EXPECT_EQ(KeyId("RCPU2147483647"), 2147483647);
    EXPECT_EQ(KeyId("RCPE0"), 0);
}

TEST(NodeKey, ABarePrefixHasTheIdMinusOne) {
    EXPECT_EQ(KeyId("RCPE"), -1);
    EXPECT_EQ(KeyId("RCP"), -1);
    EXPECT_EQ(KeyId(""), -1);
}

TEST(NodeKey, TheIdEndsAtTheFirstCharacterThatIsNoDigit) {
    EXPECT_EQ(KeyId("RCPR12abc"), 12);
    EXPECT_EQ(KeyId("RCPRabc"), 0);
    EXPECT_EQ(KeyId("RCPR-5"), 0);
}

TEST(NodeKey, AnIdBeyond32BitsIsNoRecipes) { EXPECT_EQ(KeyId("RCPR2147483648"), -1); }

TEST(NodeKey, EveryNodeOfTheBranchHasTheRecipeImage) {
    EXPECT_EQ(KeyImage("RCPE0"), "icoRcpRecipe");
    EXPECT_EQ(KeyImage("RCPR3"), "icoRcpRecipe");
    EXPECT_EQ(KeyImage("RCPU3"), "icoRcpRecipe");
}

TEST(NodeKey, EachKindOfNodeHasItsHelpContext) {
    EXPECT_EQ(KeyHelpContext("RCPE0"), 100001);
    EXPECT_EQ(KeyHelpContext("RCPR3"), 100019);
    EXPECT_EQ(KeyHelpContext("RCPU3"), 100020);
}

TEST(NodeKey, AnUnknownPrefixHasNeitherImageNorHelp) {
    for (const char* key : {"VARS1", "rcpr1", "RCP", ""}) {
        EXPECT_EQ(KeyImage(key), "") << key;
        EXPECT_EQ(KeyHelpContext(key), 0) << key;
    }
}

TEST(NodeKey, AKeyIsThePrefixAndThePlainDecimalId) {
    EXPECT_EQ(makeKey(prefixRecipe, 17), "RCPR17");
    EXPECT_EQ(makeKey(prefixSubRecipes, 1234567890), "RCPU1234567890");
    EXPECT_EQ(makeKey(prefixRoot, 0), rootKey);
}

}  // namespace
}  // namespace hx::recipe
