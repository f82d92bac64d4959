// SPDX-License-Identifier: MIT
#include "forms/font.h"

#include <gtest/gtest.h>
#include <limits>

#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errOverflow;
using support::errorNumber;

TEST(Font, IsArialInEightAndAQuarterPointsAtFirst) {
    const Font font;
    EXPECT_EQ(font.name(), "Arial");
    EXPECT_EQ(font.size(), 8.25);
    EXPECT_EQ(font.weight(), 400);
    EXPECT_FALSE(font.bold());
}

TEST(Font, KeepsFourDecimalsOfASize) {
    Font font;
    font.setSize(9.123456);
    EXPECT_EQ(font.size(), 9.1235);
}

TEST(Font, RefusesSizesOutsideOfWhatAFontCanHave) {
    Font font;
    for (const double size : {0.0, -1.0, 0.00004, 2048.1, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(errorNumber([&] { font.setSize(size); }), errOverflow) << size;
    }
    EXPECT_EQ(font.size(), 8.25);
    Font::Values values;
    values.size = 3000;
    EXPECT_EQ(errorNumber([&] { font.setValues(values); }), errOverflow);
    EXPECT_EQ(font.values(), Font::Values());
    font.setSize(2048);
    EXPECT_EQ(font.size(), 2048);
}

TEST(Font, IsBoldFromAWeightAbove550On) {
    Font font;
    font.setWeight(550);
    EXPECT_FALSE(font.bold());
    font.setBold(true);
    EXPECT_EQ(font.weight(), 700);
    font.setWeight(600);
    font.setBold(true);
    EXPECT_EQ(font.weight(), 600);
    font.setBold(false);
    EXPECT_EQ(font.weight(), 400);
}

TEST(Font, ReportsEachChangeOnce) {
    Font font;
    int changes = 0;
    font.changed.connect([&] { ++changes; });
    font.setItalic(true);
    font.setItalic(true);
    EXPECT_EQ(changes, 1);
    Font::Values values = font.values();
    values.underline = true;
    values.name = "Tahoma";
    font.setValues(values);
    font.setValues(values);
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace hx::forms
