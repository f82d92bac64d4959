// SPDX-License-Identifier: MIT
#include "project/name_order.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace hx::project {
namespace {

using Names = std::vector<std::string>;

Names sorted(Names names) {
    std::ranges::sort(names,
                      [](const std::string& a, const std::string& b) { return OrderedName(a) < OrderedName(b); });
    return names;
}

TEST(NameOrder, CaseDoesNotCount) {
    EXPECT_EQ(sorted({"cola", "Bitter", "apfel"}), (Names{"apfel", "Bitter", "cola"}));
}

TEST(NameOrder, MarkedLettersStandWithTheirPlainOnes) {
    EXPECT_EQ(sorted({"Zitrone", "Öl", "Ofen", "Ähre", "Apfel", "Straße", "Strasse 2"}),
              (Names{"Ähre", "Apfel", "Ofen", "Öl", "Straße", "Strasse 2", "Zitrone"}));
}

TEST(NameOrder, NumbersCountByTheirValue) {
    EXPECT_EQ(sorted({"Tank 10", "Tank 2", "Tank 002b", "Tank 1"}),
              (Names{"Tank 1", "Tank 2", "Tank 002b", "Tank 10"}));
    EXPECT_EQ(sorted({"10", "9", "99999999999999999999", "100000000000000000000"}),
              (Names{"9", "10", "99999999999999999999", "100000000000000000000"}));
}

TEST(NameOrder, DecimalsCountByTheirValue) {
    EXPECT_EQ(sorted({"Cola 0,5 l", "Cola 1,5 l", "Cola 0,33 l", "Cola 1,25 l", "Cola 1 l", "Cola 0,50 l"}),
              (Names{"Cola 0,33 l", "Cola 0,5 l", "Cola 0,50 l", "Cola 1 l", "Cola 1,25 l", "Cola 1,5 l"}));
    EXPECT_EQ(sorted({"0.5 l", "0.33 l", "10.25 bar", "10.3 bar", "2.5 bar"}),
              (Names{"0.33 l", "0.5 l", "2.5 bar", "10.25 bar", "10.3 bar"}));
}

TEST(NameOrder, ChaptersListsAndPlacesAreNoDecimals) {
    EXPECT_EQ(sorted({"1.10 Pumpen", "1.9 Pumpen", "1.2.10", "1.2.9", "1.2.3"}),
              (Names{"1.2.3", "1.2.9", "1.2.10", "1.9 Pumpen", "1.10 Pumpen"}));
    EXPECT_EQ(sorted({"DB10.10", "DB10.9", "DB2.1", "db10,10", "db10,9"}),
              (Names{"DB2.1", "db10,9", "db10,10", "DB10.9", "DB10.10"}));
    EXPECT_EQ(sorted({"Tanks 1,2,10", "Tanks 1,2,9"}), (Names{"Tanks 1,2,9", "Tanks 1,2,10"}));
}

TEST(NameOrder, NamesThatDifferOnlyInCaseHaveAnOrder) {
    EXPECT_TRUE(OrderedName("COLA") < OrderedName("cola"));
    EXPECT_TRUE(OrderedName("cola") == OrderedName("cola"));
    EXPECT_TRUE(OrderedName("") < OrderedName("a"));
}

}  // namespace
}  // namespace hx::project
