// SPDX-License-Identifier: MIT
#include "ado/key_marks.h"

#include <gtest/gtest.h>
#include <limits>

namespace hx::ado {
namespace {

constexpr Key lowest = std::numeric_limits<Key>::min(), highest = std::numeric_limits<Key>::max();

TEST(KeyMarks, HoldEachKeyOnce) {
    KeyMarks marks;
    for (const Key key : {Key{0}, Key{63}, Key{64}, Key{-1}, Key{-64}, lowest, highest}) {
        EXPECT_FALSE(marks.contains(key));
        EXPECT_TRUE(marks.insert(key));
        EXPECT_FALSE(marks.insert(key));
        EXPECT_TRUE(marks.contains(key));
    }
    EXPECT_EQ(marks.size(), 7U);
    EXPECT_FALSE(marks.contains(1));
    EXPECT_FALSE(marks.contains(-2));
}

TEST(KeyMarks, LoseWhatIsErased) {
    KeyMarks marks;
    marks.insert(7);
    marks.insert(8);
    EXPECT_TRUE(marks.erase(7));
    EXPECT_FALSE(marks.erase(7));
    EXPECT_FALSE(marks.erase(900));
    EXPECT_FALSE(marks.contains(7));
    EXPECT_EQ(marks.size(), 1U);
    marks.clear();
    EXPECT_FALSE(marks.contains(8));
    EXPECT_EQ(marks.size(), 0U);
}

}  // namespace
}  // namespace hx::ado
