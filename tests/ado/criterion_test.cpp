// SPDX-License-Identifier: MIT
#include "ado/criterion.h"

#include <gtest/gtest.h>
#include <vector>

namespace hx::ado {

namespace {

using automation::Error;
using automation::Null;
using automation::Variant;

const std::vector<Column>& columns() {
    static const std::vector<Column> all = {{"ID", adInteger, 4, true, false},
                                            {"Name", adVarWChar, 255},
                                            {"StandardValue", adDouble, 8},
                                            {"Enabled", adBoolean, 2},
                                            {"Kürzel Nr", adVarWChar, 20}};
    return all;
}

const std::vector<Variant>& row() {
    static const std::vector<Variant> values = {Variant(7), Variant("Apfelsaft Süß"), Variant(1.5), Variant(true),
                                                Null{}};
    return values;
}

bool finds(std::string_view text) { return matches(parseFind(text, columns()), row()); }
bool filters(std::string_view text) { return matches(parseFilter(text, columns()).value(), row()); }

std::string problemOf(std::string_view text, bool find = true) {
    try {
        if (find) (void)parseFind(text, columns());
        else (void)parseFilter(text, columns());
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), adErrInvalidArgument);
        return error.description();
    }
    return "no error";
}

TEST(Criterion, ComparesNumbers) {
    EXPECT_TRUE(finds("ID=7"));
    EXPECT_TRUE(finds("ID= 7"));
    EXPECT_TRUE(finds("  id  =  7  "));
    EXPECT_TRUE(finds("[ID] = 7"));
    EXPECT_TRUE(finds("ID='7'"));
    EXPECT_FALSE(finds("ID=8"));
    EXPECT_FALSE(finds("ID=7.5"));
    EXPECT_TRUE(finds("ID>6.5"));
    EXPECT_TRUE(finds("ID>=7"));
    EXPECT_FALSE(finds("ID<7"));
    EXPECT_TRUE(finds("ID<=7"));
    EXPECT_TRUE(finds("ID<>-7"));
    EXPECT_TRUE(finds("StandardValue = 1.5"));
    EXPECT_TRUE(finds("StandardValue = 15e-1"));
    EXPECT_TRUE(finds("StandardValue > +.5"));
}

TEST(Criterion, ComparesTextIgnoringCaseAlsoOfUmlauts) {
    EXPECT_TRUE(finds("Name='Apfelsaft Süß'"));
    EXPECT_TRUE(finds("name = 'APFELSAFT SÜß'"));
    EXPECT_FALSE(finds("Name='Apfelsaft'"));
    EXPECT_TRUE(finds("Name<>'Apfelsaft'"));
    EXPECT_TRUE(finds("Name>'apfel'"));
    EXPECT_TRUE(finds("Name<'b'"));
    EXPECT_FALSE(finds("Name=7"));
}

TEST(Criterion, LikeKnowsBothWildcards) {
    EXPECT_TRUE(finds("Name LIKE 'apfel*'"));
    EXPECT_TRUE(finds("Name like '%SÜ%'"));
    EXPECT_TRUE(finds("Name LIKE '*'"));
    EXPECT_FALSE(finds("Name LIKE 'apfel'"));
    EXPECT_TRUE(isLike("aXbXc", "a*x*c"));
    EXPECT_FALSE(isLike("aXbX", "a*c"));
    EXPECT_TRUE(isLike("", "*"));
    EXPECT_FALSE(isLike("", "a"));
}

TEST(Criterion, ADoubledQuoteInsideQuotesIsOne) {
    const std::vector<Variant> named = {Variant(1), Variant("O'Brien"), Variant(0.0), Variant(false), Variant("x")};
    EXPECT_TRUE(matches(parseFind("Name='O''Brien'", columns()), named));
    EXPECT_TRUE(matches(parseFind("Name=''", columns()), std::vector<Variant>{1, "", 0.0, false, ""}));
}

TEST(Criterion, ComparesBooleansByNameAndByNumber) {
    EXPECT_TRUE(finds("Enabled=True"));
    EXPECT_TRUE(finds("Enabled = -1"));
    EXPECT_TRUE(finds("Enabled<>0"));
    EXPECT_FALSE(finds("Enabled=False"));
}

TEST(Criterion, AMissingValueMatchesOnlyNull) {
    EXPECT_TRUE(finds("[Kürzel Nr] = Null"));
    EXPECT_FALSE(finds("[Kürzel Nr] <> Null"));
    EXPECT_FALSE(finds("[Kürzel Nr] <> 'x'"));
    EXPECT_FALSE(finds("[Kürzel Nr] = ''"));
    EXPECT_TRUE(finds("Name <> Null"));
}

TEST(Criterion, AFilterJoinsComparisonsAndBindsCloser) {
    EXPECT_TRUE(filters("ID = 7 And Enabled = True"));
    EXPECT_FALSE(filters("ID = 7 AND Enabled = False"));
    EXPECT_TRUE(filters("ID = 8 OR ID = 7 AND Enabled = True"));
    EXPECT_TRUE(filters("ID = 7 or ID = 8 and Enabled = False"));
    EXPECT_FALSE(filters("(ID = 7 or ID = 8) and Enabled = False"));
    EXPECT_TRUE(filters("((ID = 7))"));
}

TEST(Criterion, AnEmptyFilterIsNone) {
    EXPECT_FALSE(parseFilter("", columns()).has_value());
    EXPECT_FALSE(parseFilter("  ", columns()).has_value());
}

TEST(Criterion, NamesTheColumnsItLooksAt) {
    EXPECT_EQ(columnsOf(*parseFilter("Name='x' or (Enabled=1 and Name='y')", columns())), columnBit(1) | columnBit(3));
}

TEST(Criterion, SaysWhatIsWrongAndWhere) {
    EXPECT_EQ(problemOf("Name='O'Brien'"),
              "Criterion \"Name='O'Brien'\", character 9: unexpected text behind the value.");
    EXPECT_EQ(problemOf("Name='Bob''"), "Criterion \"Name='Bob''\", character 6: the closing quote is missing.");
    EXPECT_EQ(problemOf("Name='ü'x'"), "Criterion \"Name='ü'x'\", character 9: unexpected text behind the value.");
    EXPECT_EQ(problemOf("Nme='x'"), "Criterion \"Nme='x'\", character 4: there is no column \"Nme\".");
    EXPECT_EQ(problemOf("Name"), "Criterion \"Name\", character 5: an operator is missing.");
    EXPECT_EQ(problemOf("Name="),
              "Criterion \"Name=\", character 6: a value is missing; a text stands in single quotes.");
    EXPECT_EQ(problemOf("Name=abc"),
              "Criterion \"Name=abc\", character 6: a value is missing; a text stands in single quotes.");
    EXPECT_EQ(problemOf(""), "Criterion \"\", character 1: a column name is missing.");
    EXPECT_EQ(problemOf("ID='x'"), "Criterion \"ID='x'\", character 4: the value does not fit the column \"ID\".");
    EXPECT_EQ(problemOf("ID=7x"), "Criterion \"ID=7x\", character 4: \"7x\" is not a number.");
    EXPECT_EQ(problemOf("[ID=7"), "Criterion \"[ID=7\", character 2: \"]\" is missing.");
    EXPECT_EQ(problemOf("ID LIKE '7'"), "Criterion \"ID LIKE '7'\", character 9: LIKE needs a text column.");
    EXPECT_EQ(problemOf("ID > Null"), "Criterion \"ID > Null\", character 6: Null compares by = and <>.");
    EXPECT_EQ(problemOf("ID=7 AND ID=8"), "Criterion \"ID=7 AND ID=8\", character 6: a search takes one comparison.");
    EXPECT_EQ(problemOf("(ID=7", false), "Criterion \"(ID=7\", character 6: \")\" is missing.");
    EXPECT_EQ(problemOf("ID=7 AND", false), "Criterion \"ID=7 AND\", character 9: a column name is missing.");
    EXPECT_EQ(problemOf("ID=7)", false), "Criterion \"ID=7)\", character 5: unexpected text behind the value.");
}

TEST(Criterion, RefusesEndlessParenthesesInsteadOfRunningOutOfStack) {
    const std::string deep(100000, '(');
    EXPECT_THROW((void)parseFilter(deep, columns()), Error);
}

}  // namespace

}  // namespace hx::ado
