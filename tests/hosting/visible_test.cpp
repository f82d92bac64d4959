// SPDX-License-Identifier: MIT
#include "hosting/visible.h"

#include <gtest/gtest.h>

namespace hx::hosting {
namespace {

TEST(Visible, TextStaysAsItIs) {
    for (const char* text : {"", "Größe €", "日本", "\xF0\x9F\x8D\x8B", "שלום", "a\\b \"c\""}) {
        EXPECT_EQ(visible(text), text);
    }
}

TEST(Visible, ControlAndFormatCharactersAreBytes) {
    EXPECT_EQ(visible("a\nb\tc\x7F"), "a\\x0Ab\\x09c\\x7F");
    EXPECT_EQ(visible("\xC2\x85|\xC2\xAD|\xE2\x80\xAE|\xEF\xBB\xBF|\xF3\xA0\x81\x81"),
              "\\xC2\\x85|\\xC2\\xAD|\\xE2\\x80\\xAE|\\xEF\\xBB\\xBF|\\xF3\\xA0\\x81\\x81");
}

TEST(Visible, WhatIsNoTextIsBytes) {
    EXPECT_EQ(visible("a\x9B"
                      "b\xC3"),
              "a\\x9Bb\\xC3");
    EXPECT_EQ(visible("\xC0\x80\xED\xA0\x80"), "\\xC0\\x80\\xED\\xA0\\x80");
}

TEST(Visible, LinesKeepTheirEndsAndTabs) { EXPECT_EQ(visibleLines("a\n\tb\r\x1B"), "a\n\tb\\x0D\\x1B"); }

TEST(Visible, JsonKeepsItsMeaning) {
    EXPECT_EQ(visibleJson("{\n\"a\": \"\xE2\x80\xAE\xF3\xA0\x81\x81ä\"}"), "{\n\"a\": \"\\u202E\\uDB40\\uDC41ä\"}");
}

}  // namespace
}  // namespace hx::hosting
