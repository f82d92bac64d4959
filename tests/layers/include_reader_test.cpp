// SPDX-License-Identifier: MIT
#include "layers/include_reader.h"

#include <gtest/gtest.h>

namespace hx::layers {
namespace {

TEST(IncludeReader, NamesEveryIncludeWithItsLine) {
    const auto found =
        includesOf("#pragma once\n\n#include <string>\n  # include \"ado/field.h\"  // fields\r\nint a;\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].line, 3);
    EXPECT_EQ(found[0].name, "string");
    EXPECT_FALSE(found[0].inQuotes);
    EXPECT_EQ(found[1].line, 4);
    EXPECT_EQ(found[1].name, "ado/field.h");
    EXPECT_TRUE(found[1].inQuotes);
}

TEST(IncludeReader, ReadsTheLastLineWithoutALineEnd) {
    const auto found = includesOf("#include <map>");
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "map");
}

TEST(IncludeReader, LeavesOutIncludesInComments) {
    const auto found =
        includesOf("// #include <a>\n/* #include <b>\n#include <c>\n*/ #include <d>\n/**/#include <e>\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].name, "d");
    EXPECT_EQ(found[1].name, "e");
    EXPECT_EQ(found[1].line, 5);
}

TEST(IncludeReader, CountsLinesWithAndWithoutALastLineEnd) {
    EXPECT_EQ(lineCount(""), 0);
    EXPECT_EQ(lineCount("a"), 1);
    EXPECT_EQ(lineCount("a\n"), 1);
    EXPECT_EQ(lineCount("a\n\nb"), 3);
}

}  // namespace
}  // namespace hx::layers
