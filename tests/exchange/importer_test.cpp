// SPDX-License-Identifier: MIT
#include "exchange/importer.h"

#include <gtest/gtest.h>

namespace hx::exchange {
namespace {

TEST(ImportIds, AreNeverGivenTwice) {
    Ids ids;
    EXPECT_EQ(ids.next(), 1);
    ids.take(5);
    EXPECT_FALSE(ids.isFree(5));
    EXPECT_TRUE(ids.isFree(4));
    EXPECT_EQ(ids.next(), 6);
    ids.release(5);
    EXPECT_TRUE(ids.isFree(5));
    EXPECT_EQ(ids.next(), 6);  // it was given once
    ids.reserve(9);
    EXPECT_TRUE(ids.isFree(9));
    EXPECT_EQ(ids.next(), 10);
}

TEST(ImportIds, EndWithTheLargestThatAnIdCanBe) {
    Ids ids;
    ids.take(std::numeric_limits<std::int32_t>::max() - 1);
    EXPECT_TRUE(ids.hasNext());
    ids.take(ids.next());
    EXPECT_FALSE(ids.hasNext());
}

}  // namespace
}  // namespace hx::exchange
