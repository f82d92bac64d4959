// SPDX-License-Identifier: MIT
#include "project/name_set.h"

#include <gtest/gtest.h>

namespace hx::project {
namespace {

TEST(Names, HaveTheNumberOfTheirFirstAppearance) {
    NameSet names;
    EXPECT_EQ(names.add("a"), 0U);
    EXPECT_EQ(names.add("Ö"), 1U);
    EXPECT_EQ(names.add("A"), 0U);
    EXPECT_EQ(names.add(""), 2U);
    for (std::size_t i = 0; i < 5000; ++i) EXPECT_EQ(names.add("name " + std::to_string(i)), 3 + i);
    EXPECT_EQ(names.add("ö"), 1U);
}

TEST(Names, AreFoundIgnoringCaseAmongMany) {
    NameSet names;
    for (int i = 0; i < 5000; ++i) names.add("Größe" + std::to_string(i));
    names.add("GRÖßE7");
    for (int i = 0; i < 5000; ++i) EXPECT_TRUE(names.contains("gRÖßE" + std::to_string(i))) << i;
    EXPECT_FALSE(names.contains("Größe5000"));
    EXPECT_FALSE(names.contains(""));
}

}  // namespace
}  // namespace hx::project
