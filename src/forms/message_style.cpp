// SPDX-License-Identifier: MIT
#include "forms/message_style.h"

#include <algorithm>

namespace hx::forms::message {

namespace {

constexpr std::int32_t buttonBits = 0xF, defaultBits = 0xF00;

}  // namespace

std::vector<Answer> buttonsOf(std::int32_t style) {
    switch (style & buttonBits) {
        case okCancel: return {Answer::ok, Answer::cancel};
        case yesNoCancel: return {Answer::yes, Answer::no, Answer::cancel};
        case yesNo: return {Answer::yes, Answer::no};
        default: return {Answer::ok};
    }
}

Answer defaultButtonOf(std::int32_t style) {
    const auto buttons = buttonsOf(style);
    const auto number = static_cast<std::size_t>((style & defaultBits) / defaultButton2);
    return buttons[std::min(number, buttons.size() - 1)];
}

// Cancel, no or ok, whichever there is, stands last.
Answer escapeAnswerOf(std::int32_t style) { return buttonsOf(style).back(); }

std::string_view nameOf(Answer answer) noexcept {
    switch (answer) {
        case Answer::cancel: return "cancel";
        case Answer::yes: return "yes";
        case Answer::no: return "no";
        default: return "ok";
    }
}

}  // namespace hx::forms::message
