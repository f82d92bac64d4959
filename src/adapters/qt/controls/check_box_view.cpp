// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/check_box_view.h"

#include "adapters/qt/text.h"

namespace hx::qt {

CheckBoxView::CheckBoxView(forms::CheckBox& box, SurroundingForm& form, QWidget& area)
    : ControlView(box, form), box_(&area) {
    watch(box_);
    connect(&box_, &QCheckBox::clicked, this, &CheckBoxView::clicked);
}

void CheckBoxView::clicked() {
    const auto keep = model()->share();
    modelOf<forms::CheckBox>(*this)->click();
    apply("Value");
}

void CheckBoxView::show(std::string_view property) {
    const auto& box = *modelOf<forms::CheckBox>(*this);
    if (property == "Caption") {
        box_.setText(toQt(box.caption()));
    } else if (property == "Value") {
        box_.setTristate(box.value() == forms::CheckState::greyed);
        if (box.value() == forms::CheckState::greyed) box_.setCheckState(Qt::PartiallyChecked);
        else box_.setChecked(box.value() == forms::CheckState::checked);
    } else {
        ControlView::show(property);
    }
}

}  // namespace hx::qt
