// SPDX-License-Identifier: MIT
#include "adapters/qt/variable_list.h"

#include <gtest/gtest.h>

#include "automation/word_filter.h"

namespace hx::qt {
namespace {

/// The names that a filter lets through.
std::vector<std::string> found(const VariableList& list, const char* text) {
    const automation::WordFilter filter(text);
    std::vector<std::string> names;
    for (std::size_t row = 0; row < list.size(); ++row) {
        if (filter.matches(list.folded(row))) names.emplace_back(list.text(row, VariableField::name));
    }
    return names;
}

using Names = std::vector<std::string>;

class VariableListTest : public testing::Test {
  protected:
    const VariableList list{{{"Tank.Füllstand", "REAL", "Höhe in m"},
                             {"Tank.Druck", "REAL", "bar"},
                             {"Mischer.Ein", "BOOL", "läuft"},
                             {"MISCHER.ÜBERLAST", "BOOL", ""}}};
};

TEST_F(VariableListTest, APartOfNameTypeOrCommentIsEnough) {
    EXPECT_EQ(found(list, "üllst"), Names{"Tank.Füllstand"});
    EXPECT_EQ(found(list, "bool"), (Names{"Mischer.Ein", "MISCHER.ÜBERLAST"}));
    EXPECT_EQ(found(list, "bar"), Names{"Tank.Druck"});
    EXPECT_EQ(found(list, "nichts"), Names());
}

TEST_F(VariableListTest, CaseDoesNotCountNotEvenInUmlauts) {
    EXPECT_EQ(found(list, "TANK.FÜLLSTAND"), Names{"Tank.Füllstand"});
    EXPECT_EQ(found(list, "überlast"), Names{"MISCHER.ÜBERLAST"});
    EXPECT_EQ(found(list, "HÖHE"), Names{"Tank.Füllstand"});
}

TEST_F(VariableListTest, SeveralWordsMustAllStandSomewhere) {
    EXPECT_EQ(found(list, "mischer läuft"), Names{"Mischer.Ein"});
    EXPECT_EQ(found(list, "  real   tank  m "), Names{"Tank.Füllstand"});
    EXPECT_EQ(found(list, "tank bool"), Names());
}

TEST_F(VariableListTest, AWordAfterAMinusMustNotStandAnywhere) {
    EXPECT_EQ(found(list, "-tank"), (Names{"Mischer.Ein", "MISCHER.ÜBERLAST"}));
    EXPECT_EQ(found(list, "tank -BAR"), Names{"Tank.Füllstand"});
    EXPECT_EQ(found(list, "-tank -mischer"), Names());
}

TEST_F(VariableListTest, AMinusAloneAndNothingHoldForAll) {
    EXPECT_EQ(found(list, "").size(), 4U);
    EXPECT_EQ(found(list, " - ").size(), 4U);
}

TEST_F(VariableListTest, AMinusInsideAWordIsALetter) {
    const VariableList dashed({{"P-101", "REAL", ""}, {"P101", "REAL", ""}});
    EXPECT_EQ(found(dashed, "p-1"), Names{"P-101"});
}

TEST_F(VariableListTest, AWordIsNotFoundAcrossTwoFields) { EXPECT_EQ(found(list, "druckreal"), Names()); }

TEST_F(VariableListTest, AVariableIsFoundByItsNameIgnoringCase) {
    EXPECT_EQ(list.find("tank.FÜLLSTAND"), 0U);
    EXPECT_EQ(list.find("Mischer.Überlast"), 3U);
    EXPECT_EQ(list.find("Tank"), std::nullopt);
    EXPECT_EQ(list.find(""), std::nullopt);
}

TEST_F(VariableListTest, OfTwoEqualNamesTheFirstIsFound) {
    const VariableList twice({{"a", "", ""}, {"B", "", "first"}, {"b", "", "second"}});
    EXPECT_EQ(twice.find("b"), 1U);
}

TEST_F(VariableListTest, BytesThatAreNoTextAreKept) {
    const VariableList odd(
        {{"a\xff"
          "B",
          "", ""}});
    EXPECT_EQ(odd.folded(0),
              "a\xff"
              "b\n\n");
}

}  // namespace
}  // namespace hx::qt
