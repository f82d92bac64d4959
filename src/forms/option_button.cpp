// SPDX-License-Identifier: MIT
#include "forms/option_button.h"

#include "automation/member_rows.h"
#include "forms/form.h"

namespace hx::forms {

namespace {

bool sameGroup(const Control& a, const Control& b) {
    const auto area = [](const Control& control) {
        return control.container() == control.form() ? nullptr : control.container();
    };
    return area(a) == area(b);
}

}  // namespace

void OptionButton::setValue(bool value) {
    if (value_ == value) return;
    const auto keep = share();
    value_ = value;
    if (value && form() != nullptr) {
        const auto controls = form()->controls();
        for (const auto& control : controls) {
            auto* other = dynamic_cast<OptionButton*>(control.get());
            if (other != nullptr && other != this && sameGroup(*this, *other)) other->setValue(false);
        }
    }
    changed.raise("Value");
    if (value) clickEvent.raise();
}

const automation::MemberTable& OptionButton::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&OptionButton::value, &OptionButton::setValue>("Value", "Whether it is the chosen one"),
        automation::method<&OptionButton::click>("Click", "Chooses it; nothing while it is disabled"),
    };
    static const automation::MemberTable table{"OptionButton", rows, &captionedMembers()};
    return table;
}

}  // namespace hx::forms
