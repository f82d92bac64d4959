// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/command_button_view.h"

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/text.h"

namespace hx::qt {

CommandButtonView::CommandButtonView(forms::CommandButton& button, SurroundingForm& form, QWidget& area)
    : ControlView(button, form), button_(&area) {
    watch(button_);
    connect(&button_, &QPushButton::clicked, this, &CommandButtonView::clicked);
}

void CommandButtonView::clicked() {
    const auto keep = model()->share();
    form().settle();
    if (auto* button = modelOf<forms::CommandButton>(*this)) button->click();
}

void CommandButtonView::show(std::string_view property) {
    const auto& button = *modelOf<forms::CommandButton>(*this);
    if (property == "Caption") button_.setText(toQt(button.caption()));
    else if (property == "Default") button_.setDefault(button.isDefault());
    else ControlView::show(property);
}

}  // namespace hx::qt
