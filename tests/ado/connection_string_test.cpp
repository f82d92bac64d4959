// SPDX-License-Identifier: MIT
#include "ado/connection_string.h"

#include <gtest/gtest.h>

namespace hx::ado {

namespace {

constexpr std::string_view whole =
    "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=D:\\Prj\\Anlage \"Süd\".hxs;Mode=Read|Write|Share Deny None;";

TEST(ConnectionString, GivesTheValueOfAName) {
    EXPECT_EQ(connectionStringValue(whole, "Data Source"), "D:\\Prj\\Anlage \"Süd\".hxs");
    EXPECT_EQ(connectionStringValue(whole, "provider"), "Microsoft.Jet.OLEDB.4.0");
    EXPECT_EQ(connectionStringValue(whole, "MODE"), "Read|Write|Share Deny None");
}

TEST(ConnectionString, GivesNothingForANameThatIsNotThere) {
    EXPECT_EQ(connectionStringValue(whole, "Password"), "");
    EXPECT_EQ(connectionStringValue("", "Data Source"), "");
    EXPECT_EQ(connectionStringValue("nonsense;;=;", "Data Source"), "");
}

TEST(ConnectionString, TakesTheLastOfEqualNames) {
    EXPECT_EQ(connectionStringValue("Mode=Read;Mode=Write", "Mode"), "Write");
}

TEST(ConnectionString, AQuotedValueMayHoldASemicolon) {
    EXPECT_EQ(connectionStringValue("Data Source=\"/a;b/plant.hxs\";Mode=Read", "Data Source"), "/a;b/plant.hxs");
    EXPECT_EQ(connectionStringValue("Data Source=\"/a;b/plant.hxs\";Mode=Read", "Mode"), "Read");
}

}  // namespace

}  // namespace hx::ado
