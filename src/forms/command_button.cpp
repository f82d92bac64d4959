// SPDX-License-Identifier: MIT
#include "forms/command_button.h"

#include "automation/member_rows.h"

namespace hx::forms {

void CommandButton::click() {
    if (enabled()) clickEvent.raise();
}

const automation::MemberTable& CommandButton::members() const {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&CommandButton::isDefault, &CommandButton::setDefault>("Default", "Whether Enter presses it"),
        property<&CommandButton::isCancel, &CommandButton::setCancel>("Cancel", "Whether Esc presses it"),
        automation::method<&CommandButton::click>("Click", "Presses it; nothing while it is disabled"),
    };
    static const automation::MemberTable table{"CommandButton", rows, &captionedMembers()};
    return table;
}

}  // namespace hx::forms
