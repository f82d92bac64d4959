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

TEST(NameOrder, NamesThatDifferOnlyInCaseHaveAnOrder) {
    EXPECT_TRUE(OrderedName("COLA") < OrderedName("cola"));
    EXPECT_TRUE(OrderedName("cola") == OrderedName("cola"));
    EXPECT_TRUE(OrderedName("") < OrderedName("a"));
}

}  // namespace
}  // namespace hx::project
