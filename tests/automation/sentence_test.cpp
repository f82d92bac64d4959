// SPDX-License-Identifier: MIT
#include "automation/sentence.h"

#include <gtest/gtest.h>

namespace hx::automation {
namespace {

constexpr Sentence partLost{"%2 of %1 is lost.", "%2 von %1 ist verloren."};

TEST(Sentences, AreSaidInBothLanguages) {
    EXPECT_EQ(say(Language::english, partLost, {"A", "B"}), "B of A is lost.");
    EXPECT_EQ(say(Language::german, partLost, {"A", "B"}), "B von A ist verloren.");
}

TEST(Sentences, TakeNamesAsTheyAre) {
    EXPECT_EQ(say(Language::english, partLost, {"%2%", "100%1"}), "100%1 of %2% is lost.");
    EXPECT_EQ(say(Language::english, {"50% of %1, %9", ""}, {"A"}), "50% of A, %9");
    EXPECT_EQ(say(Language::english, {"%", ""}), "%");
}

TEST(Sentences, AreGermanUnlessTheLocaleIsEnglish) {
    EXPECT_EQ(languageOf(1033), Language::english);
    for (const std::int32_t lcid : {1031, 2057, 0}) EXPECT_EQ(languageOf(lcid), Language::german) << lcid;
}

}  // namespace
}  // namespace hx::automation
