// SPDX-License-Identifier: MIT
#include "automation/text_list.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>

namespace hx::automation {
namespace {

using Numbers = std::vector<std::uint32_t>;

TextList listOf(const std::vector<std::string>& texts) {
    TextList list;
    for (const std::string& text : texts) list.append(text);
    return list;
}

TEST(TextList, KeepsTextsByNumber) {
    TextList list = listOf({"a", "", "bcd"});
    list.appendFolded("ÄB");
    ASSERT_EQ(list.size(), 4U);
    EXPECT_EQ(list[0], "a");
    EXPECT_EQ(list[1], "");
    EXPECT_EQ(list[2], "bcd");
    EXPECT_EQ(list[3], "äb");
}

TEST(TextList, NothingIsInOrder) { EXPECT_EQ(inOrder(TextList()), Numbers()); }

TEST(TextList, EqualTextsKeepTheirOrder) {
    const TextList list = listOf({"b", "a", "b", "a", "exactly8", "exactly8"});
    EXPECT_EQ(inOrder(list), (Numbers{1, 3, 0, 2, 4, 5}));
    EXPECT_EQ(inOrder(list, true), (Numbers{4, 5, 0, 2, 1, 3}));
}

// Of all lengths around those that are compared at once, with zeros and the highest bytes.
TEST(TextList, IsOrderedAsBytesAre) {
    std::vector<std::string> texts;
    for (const std::size_t length : {0U, 1U, 7U, 8U, 9U, 15U, 16U, 17U, 40U}) {
        for (const char fill : {'\0', 'a', '\xFF'}) {
            for (const char* end : {"", "a", "b", "\xFF"}) texts.push_back(std::string(length, fill) + end);
        }
    }
    const TextList list = listOf(texts);
    Numbers expected(texts.size());
    std::iota(expected.begin(), expected.end(), 0U);
    std::ranges::stable_sort(expected, {}, [&](std::uint32_t i) -> const std::string& { return texts[i]; });
    EXPECT_EQ(inOrder(list), expected);
    std::iota(expected.begin(), expected.end(), 0U);
    std::ranges::stable_sort(expected, std::greater<>(),
                             [&](std::uint32_t i) -> const std::string& { return texts[i]; });
    EXPECT_EQ(inOrder(list, true), expected);
}

}  // namespace
}  // namespace hx::automation
