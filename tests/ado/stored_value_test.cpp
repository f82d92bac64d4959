// SPDX-License-Identifier: MIT
#include "ado/stored_value.h"

#include <gtest/gtest.h>
#include <limits>

namespace hx::ado {
namespace {

using Kind = StoredValue::Kind;

TEST(StoredValues, AreShownAsText) {
    std::string room;
    EXPECT_EQ(shownText({Kind::text, 0, 0, "Größe"}, room), "Größe");
    EXPECT_EQ(shownText({}, room), "");
    EXPECT_EQ(shownText(StoredValue::of(-17), room), "-17");
    EXPECT_EQ(shownText({Kind::real, 1, 1.5, {}}, room), "1.5");
}

TEST(StoredValues, AreTheSameWhenTheyHoldTheSame) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(StoredValue::of(3).isSameAs({Kind::real, 3, 3.0, {}}));
    EXPECT_FALSE(StoredValue::of(3).isSameAs({Kind::real, 3, 3.5, {}}));
    EXPECT_TRUE((StoredValue{Kind::real, 0, none, {}}.isSameAs({Kind::real, 0, none, {}})));
    EXPECT_FALSE((StoredValue{Kind::text, 0, 0, "1"}.isSameAs(StoredValue::of(1))));
    EXPECT_FALSE((StoredValue{Kind::text, 0, 0, "a"}.isSameAs({Kind::bytes, 0, 0, "a"})));
    EXPECT_FALSE((StoredValue{Kind::text, 0, 0, ""}.isSameAs({})));
    // Beyond what a real number tells apart.
    constexpr std::int64_t large = (std::int64_t{1} << 60) + 1;
    EXPECT_FALSE(StoredValue::of(large).isSameAs(StoredValue::of(large - 1)));
    EXPECT_TRUE(StoredValue::of(large).isSameAs(StoredValue::of(large)));
}

}  // namespace
}  // namespace hx::ado
