// SPDX-License-Identifier: MIT
#include "automation/convert.h"

#include <gtest/gtest.h>
#include <limits>

#include "automation/error.h"

namespace hx::automation {
namespace {

const NumberFormat german{","};

TEST(NumberToText, WritesWholeNumbersWithoutDecimals) {
    EXPECT_EQ(numberToText(3000), "3000");
    EXPECT_EQ(numberToText(-1), "-1");
    EXPECT_EQ(numberToText(-0.0), "0");
}

TEST(NumberToText, UsesTheLocalesDecimalSeparator) {
    EXPECT_EQ(numberToText(8.25), "8.25");
    EXPECT_EQ(numberToText(8.25, german), "8,25");
    EXPECT_EQ(numberToText(3000.189, german), "3000,189");
}

TEST(NumberToText, IsTheShortestThatReadsBackToTheSameNumber) {
    EXPECT_EQ(numberToText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(numberToText(0.3), "0.3");
    EXPECT_EQ(numberToText(1.0 / 3), "0.3333333333333333");
    EXPECT_EQ(numberToText(9007199254740993.0), "9.007199254740992E+15");
    EXPECT_EQ(numberToText(std::numeric_limits<double>::denorm_min()), "5E-324");
    for (const double value :
         {1.0 / 3, 2.0 / 3, 0.1 + 0.2, 1e23, 123456.789, 4.35, 1e-7, 5e-324, 1.7976931348623157e308}) {
        EXPECT_EQ(leadingNumber(numberToText(value)), value);
        EXPECT_EQ(leadingNumber(numberToText(-value)), -value);
    }
}

TEST(NumberToText, GoesOverToPowersOfTenFromFifteenDigitsOn) {
    EXPECT_EQ(numberToText(123456789012345), "123456789012345");
    EXPECT_EQ(numberToText(1e15), "1E+15");
    EXPECT_EQ(numberToText(1e20), "1E+20");
    EXPECT_EQ(numberToText(0.0001), "0.0001");
    EXPECT_EQ(numberToText(0.00001), "1E-05");
}

TEST(NumberToText, WritesAPointWhereTheLocaleHasNeitherPointNorComma) {
    EXPECT_EQ(numberToText(8.25, {"\u066B"}), "8.25");
}

TEST(ToText, WritesBooleansAsWordsAndNothingForNull) {
    EXPECT_EQ(toText(true), "True");
    EXPECT_EQ(toText(false), "False");
    EXPECT_EQ(toText(Null{}), "");
    EXPECT_EQ(toText(Variant()), "");
}

TEST(LeadingNumber, StopsAtTheFirstCharacterThatCannotContinueIt) {
    EXPECT_EQ(leadingNumber("12abc"), 12);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber("1,2"), 1);
    EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(leadingNumber(" -5x"), -5);
    EXPECT_EQ(leadingNumber("\t7"), 7);
    EXPECT_EQ(leadingNumber("1 2"), 1);
    EXPECT_EQ(leadingNumber("1. 5"), 1);
    EXPECT_EQ(leadingNumber("- 5"), 0);
    EXPECT_EQ(leadingNumber("   "), 0);
    EXPECT_EQ(leadingNumber("1e3"), 1000);
    EXPECT_EQ(leadingNumber("1e"), 1);
    EXPECT_EQ(leadingNumber("."), 0);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("1e-400"), 0) << "too small to be told from 0";
    EXPECT_EQ(leadingNumber("-0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leadingNumber("0." + std::string(600, '0') + "1e610"), 1e9);
}

TEST(RoundToInt16, RoundsHalvesToTheEvenNeighbour) {
    EXPECT_EQ(roundToInt16(0.5), 0);
    EXPECT_EQ(roundToInt16(1.5), 2);
    EXPECT_EQ(roundToInt16(2.5), 2);
    EXPECT_EQ(roundToInt16(-2.5), -2);
    EXPECT_EQ(roundToInt16(3000.189), 3000);
}

TEST(RoundToInt16, RefusesWhatDoesNotFit) {
    EXPECT_EQ(roundToInt16(32767.4), 32767);
    EXPECT_THROW((void)roundToInt16(32767.5), Error);
    EXPECT_THROW((void)roundToInt16(-32769), Error);
}

TEST(Coercion, TreatsTrueAsMinusOne) {
    EXPECT_EQ(toInt16(true), -1);
    EXPECT_EQ(toInt32(false), 0);
    EXPECT_TRUE(toBoolean(-1));
    EXPECT_TRUE(toBoolean("TRUE"));
}

TEST(Coercion, RefusesNullObjectsAndTextThatIsNoNumber) {
    EXPECT_THROW((void)toInt32(Null{}), Error);
    EXPECT_THROW((void)toInt32("12abc"), Error);
    EXPECT_THROW((void)toDouble(Variant(ObjectRef{})), Error);
    EXPECT_EQ(toInt32(" -5 "), -5);
}

}  // namespace
}  // namespace hx::automation
