#include "adapters/headless/message_style.h"

namespace hx::headless {

namespace message = forms::message;
using message::Answer;

namespace {

constexpr std::int32_t buttonBits = 0xF;

}  // namespace

std::vector<Answer> buttonsOf(std::int32_t style) {
    switch (style & buttonBits) {
        case message::okCancel: return {Answer::ok, Answer::cancel};
        case message::yesNoCancel: return {Answer::yes, Answer::no, Answer::cancel};
        case message::yesNo: return {Answer::yes, Answer::no};
        default: return {Answer::ok};
    }
}

Answer defaultButtonOf(std::int32_t style) {
    const auto buttons = buttonsOf(style);
    const bool second = (style & message::defaultButton2) != 0 && buttons.size() > 1;
    return buttons[second ? 1 : 0];
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

}  // namespace hx::headless
