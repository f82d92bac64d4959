// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

#include <algorithm>

#include "automation/member_rows.h"
#include "automation/text.h"
#include "forms/known_value.h"

namespace hx::forms {

namespace {

std::int32_t lengthOf(const std::string& text) { return static_cast<std::int32_t>(automation::characterCount(text)); }

}  // namespace

void TextBox::setText(const std::string& text) {
    if (text_ == text) return;
    const auto keep = share();
    const std::int32_t length = lengthOf(text);
    selStart_ = std::min(selStart_, length);
    selLength_ = std::min(selLength_, length - selStart_);
    assign(text_, text, "Text");
    changeEvent.raise();
}

void TextBox::setSelStart(std::int32_t position) {
    const bool selected = selLength_ != 0;
    selLength_ = 0;
    const std::int32_t start = std::clamp(position, 0, lengthOf(text_));
    if (selStart_ == start && !selected) return;
    selStart_ = start;
    changed.raise("SelStart");
}

void TextBox::setSelLength(std::int32_t length) {
    assign(selLength_, std::clamp(length, 0, lengthOf(text_) - selStart_), "SelLength");
}

// The caret can be ahead of a text that is still to be reported: setText brings it inside.
void TextBox::caretReported(std::int32_t start, std::int32_t length) noexcept {
    selStart_ = std::max(start, 0);
    selLength_ = std::max(length, 0);
}

void TextBox::setBackColor(SystemColor color) {
    assign(backColor_, requireKnown(color, {SystemColor::window, SystemColor::buttonFace}), "BackColor");
}

const automation::MemberTable& TextBox::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&TextBox::text, &TextBox::setText>("Text", "The text in the field"),
        property<&TextBox::selStart, &TextBox::setSelStart>("SelStart", "The caret: characters before the selection"),
        property<&TextBox::selLength, &TextBox::setSelLength>("SelLength", "Characters that are selected"),
        property<&TextBox::locked, &TextBox::setLocked>("Locked", "Whether the user can only read"),
        property<&TextBox::multiLine, &TextBox::setMultiLine>("MultiLine", "Whether it holds more than one line"),
        property<&TextBox::backColor, &TextBox::setBackColor>("BackColor",
                                                              "A colour of the system: 5 window, 15 button face"),
    };
    static const automation::MemberTable table{"TextBox", rows, &controlMembers()};
    return table;
}

}  // namespace hx::forms
