// SPDX-License-Identifier: MIT
#include "automation/utf8.h"

#include <gtest/gtest.h>

#include "automation/text.h"

namespace hx::automation {
namespace {

TEST(Utf8, EveryCodePointReadsBackAsItself) {
    for (char32_t point = 0; point <= 0x10FFFF; ++point) {
        std::string text;
        appendUtf8(text, point);
        const Utf8Character read = decodeUtf8(text, 0);
        if (point >= 0xD800 && point <= 0xDFFF) {
            ASSERT_EQ(read.length, 0U) << std::uint32_t{point};
        } else {
            ASSERT_EQ(read.point, point);
            ASSERT_EQ(read.length, text.size());
        }
    }
}

TEST(Utf8, RefusesWhatIsNoCharacter) {
    for (const std::string_view text : {"\x80", "\xC0\xAF", "\xC1\xBF", "\xE0\x80\xAF", "\xE0\x9F\xBF", "\xED\xA0\x80",
                                        "\xF0\x80\x80\xAF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                                        "\xFF", "\xC3", "\xE2\x82", "\xE2(\xAC", "\xE2\x82(", "\xF0\x9F\x98("}) {
        EXPECT_EQ(decodeUtf8(text, 0).length, 0U) << testing::PrintToString(text);
        EXPECT_EQ(findNoUtf8("ä" + std::string(text)), 2U) << testing::PrintToString(text);
    }
    EXPECT_TRUE(isUtf8("aß€😀"));
    EXPECT_TRUE(isUtf8(""));
}

TEST(Utf8, AnOverlongFormFoldsToNothingElse) { EXPECT_EQ(foldCase("\xE0\x80\xAF"), "\xE0\x80\xAF"); }

TEST(Utf8, KnowsWhatTheNextPieceMayComplete) {
    EXPECT_EQ(unfinishedUtf8("a\xC3"), 1U);
    EXPECT_EQ(unfinishedUtf8("a\xE2\x82"), 2U);
    EXPECT_EQ(unfinishedUtf8("a\xF0\x9F\x98"), 3U);
    EXPECT_EQ(unfinishedUtf8("\xE2"), 1U);
    for (const std::string_view whole : {"", "a", "ä", "€", "😀", "a\x80", "\xE0\x80", "\x80\x80\x80\x80", "\xFF"}) {
        EXPECT_EQ(unfinishedUtf8(whole), 0U) << testing::PrintToString(whole);
    }
}

}  // namespace
}  // namespace hx::automation
