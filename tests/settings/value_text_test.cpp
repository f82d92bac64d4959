// SPDX-License-Identifier: MIT
#include "settings/value_text.h"

#include <gtest/gtest.h>

#include "automation/error.h"

namespace hx::settings {
namespace {

using automation::Variant;

TEST(TextToValue, ReadsThreeSpellingsOfEachBoolean) {
    for (const char* text : {"TRUE", "True", "true"}) EXPECT_EQ(TextToValue(text), Variant(true)) << text;
    for (const char* text : {"FALSE", "False", "false"}) EXPECT_EQ(TextToValue(text), Variant(false)) << text;
    EXPECT_EQ(TextToValue("tRUE"), Variant("tRUE"));
    EXPECT_EQ(TextToValue("FaLSE"), Variant("FaLSE"));
}

TEST(TextToValue, DropsLeadingBlanksOnly) {
    EXPECT_EQ(TextToValue("  True"), Variant(true));
    EXPECT_EQ(TextToValue("True "), Variant("True "));
    EXPECT_EQ(TextToValue("  Arial "), Variant("Arial "));
    EXPECT_EQ(TextToValue("   "), Variant(""));
    EXPECT_EQ(TextToValue(""), Variant(""));
}

TEST(TextToValue, ReadsTheNumberAtTheStartWithPointOrComma) {
    EXPECT_EQ(TextToValue("8,25"), Variant(8.25));
    EXPECT_EQ(TextToValue("3000,189"), Variant(3000.189));
    EXPECT_EQ(TextToValue("8.25"), Variant(8.25));
    EXPECT_EQ(TextToValue("1,2,3"), Variant(1.2));
    EXPECT_EQ(TextToValue("12abc"), Variant(12.0));
    EXPECT_EQ(TextToValue("1 000\t000 , 5"), Variant(1000000.5));
    EXPECT_EQ(TextToValue(" 0"), Variant(0.0));
    EXPECT_EQ(TextToValue("9,5"), Variant(9.5));
    EXPECT_EQ(TextToValue("2").type(), automation::VarType::real8);
}

TEST(TextToValue, TakesATextThatDoesNotBeginWithADigitAsText) {
    EXPECT_EQ(TextToValue("-5"), Variant("-5"));
    EXPECT_EQ(TextToValue("+5"), Variant("+5"));
    EXPECT_EQ(TextToValue(".5"), Variant(".5"));
    EXPECT_EQ(TextToValue(",0,1,2,3"), Variant(",0,1,2,3"));
}

TEST(TextToValue, RefusesANumberThatNoDoubleHolds) {
    try {
        (void)TextToValue("1E999");
        FAIL() << "a value was given";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errOverflow);
    }
}

TEST(ValueToText, WritesNumbersInTheUsersLocale) {
    EXPECT_EQ(ValueToText(Variant(8.25), {","}), "8,25");
    EXPECT_EQ(ValueToText(Variant(8.25), {"."}), "8.25");
    EXPECT_EQ(ValueToText(Variant(6000.0), {","}), "6000");
    EXPECT_EQ(ValueToText(Variant(std::int16_t{-3}), {","}), "-3");
}

TEST(ValueToText, WritesTextUnchangedAndBooleansInEnglish) {
    EXPECT_EQ(ValueToText(Variant(" 1.5 "), {","}), " 1.5 ");
    EXPECT_EQ(ValueToText(Variant(true), {","}), "True");
    EXPECT_EQ(ValueToText(Variant(false), {","}), "False");
}

}  // namespace
}  // namespace hx::settings
