// SPDX-License-Identifier: MIT
#include "forms/check_box.h"

#include "automation/member_rows.h"
#include "forms/known_value.h"

namespace hx::forms {

void CheckBox::setValue(CheckState value) {
    requireKnown(value, {CheckState::unchecked, CheckState::checked, CheckState::greyed});
    if (value_ == value) return;
    const auto keep = share();
    assign(value_, value, "Value");
    clickEvent.raise();
}

void CheckBox::click() {
    if (enabled()) setValue(value_ == CheckState::unchecked ? CheckState::checked : CheckState::unchecked);
}

const automation::MemberTable& CheckBox::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&CheckBox::value, &CheckBox::setValue>("Value", "0 unchecked, 1 checked, 2 greyed"),
        automation::method<&CheckBox::click>("Click", "Toggles it; nothing while it is disabled"),
    };
    static const automation::MemberTable table{"CheckBox", rows, &captionedMembers()};
    return table;
}

}  // namespace hx::forms
