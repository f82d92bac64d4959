// SPDX-License-Identifier: MIT
#include "forms/message_style.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace hx::forms::message {
namespace {

using ::testing::ElementsAre;

TEST(MessageStyle, NamesTheButtonsInTheirOrder) {
    EXPECT_THAT(buttonsOf(ok | critical), ElementsAre(Answer::ok));
    EXPECT_THAT(buttonsOf(okCancel | question), ElementsAre(Answer::ok, Answer::cancel));
    EXPECT_THAT(buttonsOf(yesNo), ElementsAre(Answer::yes, Answer::no));
    EXPECT_THAT(buttonsOf(yesNoCancel), ElementsAre(Answer::yes, Answer::no, Answer::cancel));
}

TEST(MessageStyle, EnterPressesTheButtonThatTheStyleNumbers) {
    constexpr std::int32_t third = 2 * defaultButton2;
    EXPECT_EQ(defaultButtonOf(yesNoCancel | question), Answer::yes);
    EXPECT_EQ(defaultButtonOf(yesNoCancel | defaultButton2), Answer::no);
    EXPECT_EQ(defaultButtonOf(yesNoCancel | third), Answer::cancel);
    EXPECT_EQ(defaultButtonOf(yesNo | third), Answer::no) << "the last one, where there are fewer";
    EXPECT_EQ(defaultButtonOf(ok | defaultButton2), Answer::ok);
}

TEST(MessageStyle, EscAnswersCancelNoOrOkWhicheverThereIs) {
    EXPECT_EQ(escapeAnswerOf(yesNoCancel), Answer::cancel);
    EXPECT_EQ(escapeAnswerOf(okCancel), Answer::cancel);
    EXPECT_EQ(escapeAnswerOf(yesNo), Answer::no);
    EXPECT_EQ(escapeAnswerOf(ok), Answer::ok);
}

}  // namespace
}  // namespace hx::forms::message
