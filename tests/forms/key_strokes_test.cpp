// SPDX-License-Identifier: MIT
#include "forms/key_strokes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/error.h"

namespace hx::forms {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(KeyStrokes, ReadsNamesInBraces) {
    EXPECT_THAT(keyStrokes("{F1}{f12}"), ElementsAre(KeyStroke{112, 0, 0}, KeyStroke{123, 0, 0}));
    EXPECT_THAT(keyStrokes("{ENTER}{Esc}{TAB}{Backspace}"),
                ElementsAre(KeyStroke{13, 0, 13}, KeyStroke{27, 0, 27}, KeyStroke{9, 0, 9}, KeyStroke{8, 0, 8}));
    EXPECT_THAT(keyStrokes("{PGUP}{Home}{INSERT}"), ElementsAre(KeyStroke{33}, KeyStroke{36}, KeyStroke{45}));
}

TEST(KeyStrokes, KnowTheKeyThatDeletesByBothItsNames) {
    EXPECT_THAT(keyStrokes("{DEL}{DELETE}"), ElementsAre(KeyStroke{46, 0, 0}, KeyStroke{46, 0, 0}));
}

TEST(KeyStrokes, KnowTwentyFourFunctionKeys) {
    EXPECT_THAT(keyStrokes("{F13}{F24}"), ElementsAre(KeyStroke{124}, KeyStroke{135}));
    for (const char* none : {"{F0}", "{F25}", "{F-1}", "{F}", "{F1x}", "{Fx}", "{F99999999999}"}) {
        EXPECT_THROW((void)keyStrokes(none), automation::Error) << none;
    }
}

TEST(KeyStrokes, ReadsShiftStatesForTheNextKeyOnly) {
    EXPECT_THAT(keyStrokes("^{DEL}c"), ElementsAre(KeyStroke{46, shift::ctrl, 0}, KeyStroke{67, 0, 'c'}));
    EXPECT_THAT(keyStrokes("%+{F6}"), ElementsAre(KeyStroke{117, shift::alt | shift::shift, 0}));
    EXPECT_THAT(keyStrokes("A+b"), ElementsAre(KeyStroke{65, shift::shift, 'A'}, KeyStroke{66, shift::shift, 'b'}));
}

TEST(KeyStrokes, TypeNoCharacterWithControlOrAlt) {
    EXPECT_THAT(keyStrokes("^c%9"), ElementsAre(KeyStroke{67, shift::ctrl, 0}, KeyStroke{57, shift::alt, 0}));
    EXPECT_THAT(keyStrokes("^{ENTER}"), ElementsAre(KeyStroke{13, shift::ctrl, 0}));
}

TEST(KeyStrokes, TypeCharactersWhoseKeysLieElsewhereOnEachKeyboardWithoutACode) {
    EXPECT_THAT(keyStrokes("\xC3\xBC.\xE2\x82\xAC{"), ElementsAre(KeyStroke{0, 0, 0xFC}, KeyStroke{0, 0, '.'},
                                                                  KeyStroke{0, 0, 0x20AC}, KeyStroke{0, 0, '{'}));
    EXPECT_THAT(keyStrokes(" 7"), ElementsAre(KeyStroke{32, 0, ' '}, KeyStroke{55, 0, '7'}));
}

TEST(KeyStrokes, TypeNothingForBytesThatAreNoText) {
    EXPECT_THAT(keyStrokes("\xFFz"), ElementsAre(KeyStroke{}, KeyStroke{90, 0, 'z'}));
}

TEST(KeyStrokes, RefuseAnUnknownName) {
    try {
        (void)keyStrokes("a{RETURN}");
        FAIL() << "the name was taken";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errFail);
        EXPECT_EQ(error.description(), "There is no key \"{RETURN}\"");
    }
    EXPECT_THROW((void)keyStrokes("{}"), automation::Error);
    EXPECT_THAT(keyStrokes(""), IsEmpty());
}

}  // namespace
}  // namespace hx::forms
