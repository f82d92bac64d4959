// SPDX-License-Identifier: MIT
#include "ado/row_keys.h"

#include <gtest/gtest.h>
#include <vector>

namespace hx::ado {

namespace {

RowKeys keysOf(std::initializer_list<Key> keys) {
    RowKeys set;
    for (const Key key : keys) set.append(key);
    return set;
}

TEST(RowKeys, KeepsTheOrderInWhichKeysWereAppended) {
    const RowKeys keys = keysOf({7, 3, 9});
    ASSERT_EQ(keys.size(), 3U);
    EXPECT_EQ(keys[0], 7);
    EXPECT_EQ(keys[1], 3);
    EXPECT_EQ(keys[2], 9);
    EXPECT_FALSE(keys.ascending());
}

TEST(RowKeys, FindsAKeyAmongAscendingOnes) {
    RowKeys keys;
    for (Key key = 10; key < 3000; key += 10) keys.append(key);
    EXPECT_TRUE(keys.ascending());
    EXPECT_EQ(keys.find(1500), 149U);
    EXPECT_EQ(keys.find(1505), std::nullopt);
    EXPECT_EQ(keys.find(5000), std::nullopt);
}

TEST(RowKeys, FindsAKeyAmongUnorderedOnesFromAnyHint) {
    const RowKeys keys = keysOf({5, 1, 4, 2, 3});
    for (std::size_t hint = 0; hint < 8; ++hint) {
        EXPECT_EQ(keys.find(5, hint), 0U) << hint;
        EXPECT_EQ(keys.find(2, hint), 3U) << hint;
        EXPECT_EQ(keys.find(3, hint), 4U) << hint;
        EXPECT_EQ(keys.find(6, hint), std::nullopt) << hint;
    }
}

TEST(RowKeys, SortsKeysThatLieCloseAndKeysThatLieFarApart) {
    for (const Key factor : {Key{1}, Key{1000}, Key{1} << 33}) {
        RowKeys keys;
        for (const Key key : {5, -3, 9, 0, 7, 12, -8}) keys.append(key * factor);
        keys.sort(false);
        const std::vector<Key> sorted = {-8, -3, 0, 5, 7, 9, 12};
        for (std::size_t i = 0; i < sorted.size(); ++i) EXPECT_EQ(keys[i], sorted[i] * factor);
        EXPECT_TRUE(keys.ascending());
        keys.sort(true);
        for (std::size_t i = 0; i < sorted.size(); ++i) EXPECT_EQ(keys[i], sorted[sorted.size() - 1 - i] * factor);
    }
}

TEST(RowKeys, FindsNothingWhenEmpty) {
    EXPECT_TRUE(RowKeys().empty());
    EXPECT_EQ(RowKeys().find(1), std::nullopt);
}

TEST(RowKeys, WidensWhenAKeyDoesNotFitInto32Bits) {
    RowKeys keys = keysOf({1, 2});
    keys.append(Key{1} << 40);
    keys.append(5);
    ASSERT_EQ(keys.size(), 4U);
    EXPECT_EQ(keys[0], 1);
    EXPECT_EQ(keys[2], Key{1} << 40);
    EXPECT_EQ(keys[3], 5);
    EXPECT_EQ(keys.find(Key{1} << 40), 2U);
    EXPECT_FALSE(keys.ascending());
}

TEST(RowKeys, ErasesByPosition) {
    RowKeys keys = keysOf({1, 2, 3, 4});
    keys.erase(1);
    ASSERT_EQ(keys.size(), 3U);
    EXPECT_EQ(keys[1], 3);
    EXPECT_EQ(keys.find(2), std::nullopt);
    keys.erase(2);
    keys.append(4);
    EXPECT_TRUE(keys.ascending());
    EXPECT_EQ(keys.find(4), 2U);
}

}  // namespace

}  // namespace hx::ado
