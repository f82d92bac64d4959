// SPDX-License-Identifier: MIT
#include "automation/text.h"

#include <gtest/gtest.h>

namespace hx::automation {
namespace {

TEST(CompareIgnoreCase, KnowsUmlautsGreekAndCyrillic) {
    EXPECT_TRUE(equalIgnoreCase("KÜHLÖFEN", "kühlöfen"));
    EXPECT_TRUE(equalIgnoreCase("ŠKODA Ÿ", "škoda ÿ"));
    EXPECT_TRUE(equalIgnoreCase("ΑΩΆ", "αωά"));
    EXPECT_TRUE(equalIgnoreCase("ЖЁ", "жё"));
    EXPECT_FALSE(equalIgnoreCase("a", "ä"));
    EXPECT_FALSE(equalIgnoreCase("a", "ab"));
    EXPECT_EQ(compareIgnoreCase("B", "a"), std::strong_ordering::greater);
}

TEST(FoldCase, KeepsBytesThatAreNotUtf8) {
    EXPECT_EQ(foldCase("A\xFFZ\xC3"), "a\xFFz\xC3");
    EXPECT_FALSE(equalIgnoreCase("\xFF", "\xFE"));
}

TEST(FoldCase, FoldsAsciiWhereverItStands) {
    std::string all, folded;
    for (int c = 0; c < 0x80; ++c) {
        all += static_cast<char>(c);
        folded += static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    }
    for (std::size_t start = 0; start < 9; ++start) EXPECT_EQ(foldCase(all.substr(start)), folded.substr(start));
    for (std::size_t at = 0; at < 20; ++at) {
        const std::string before(at, 'X'), foldedBefore(at, 'x');
        EXPECT_EQ(foldCase(before + "ÄQ[@Z\xFFY" + before), foldedBefore + "äq[@z\xFFy" + foldedBefore);
    }
}

TEST(Split, KeepsEmptyParts) {
    EXPECT_EQ(split(",0,1", ','), (std::vector<std::string>{"", "0", "1"}));
    EXPECT_EQ(split("", ','), std::vector<std::string>{""});
}

TEST(Trim, TakesBlanksOnly) {
    EXPECT_EQ(trim("  a b "), "a b");
    EXPECT_EQ(trim("   "), "");
}

TEST(FromWindows1252, ConvertsUmlautsAndTheEuroSign) { EXPECT_EQ(fromWindows1252("L\xF6schen \x80"), "Löschen €"); }

TEST(LeftCharacters, CountsCharactersNotBytes) {
    EXPECT_EQ(leftCharacters("äöü", 2), "äö");
    EXPECT_EQ(characterCount("äöü"), 3U);
    EXPECT_EQ(leftCharacters("a", 5), "a");
}

TEST(ReplaceAll, ReplacesEveryOccurrence) {
    EXPECT_EQ(replaceAll("1,2,3", ",", "."), "1.2.3");
    EXPECT_EQ(replaceAll("aa", "", "b"), "aa");
}

}  // namespace
}  // namespace hx::automation
