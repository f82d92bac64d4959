// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/option_button_view.h"

#include <algorithm>
#include <vector>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

/// The other buttons of its group.
std::vector<const forms::OptionButton*> othersOf(const forms::OptionButton& button) {
    std::vector<const forms::OptionButton*> others;
    if (button.form() == nullptr) return others;
    for (const auto& control : button.form()->controls()) {
        const auto* other = dynamic_cast<const forms::OptionButton*>(control.get());
        if (other == nullptr || other == &button || other->container() != button.container()) continue;
        others.push_back(other);
    }
    return others;
}

}  // namespace

OptionButtonView::OptionButtonView(forms::OptionButton& button, SurroundingForm& form, QWidget& area)
    : ControlView(button, form), button_(&area) {
    watch(button_);
    connect(&button_, &QRadioButton::toggled, this, &OptionButtonView::toggled);
}

void OptionButtonView::toggled(bool on) {
    const auto keep = model()->share();
    if (on) modelOf<forms::OptionButton>(*this)->click();
    apply("Value");
}

// The tabulator key stops once in a group: at the button that is set, or at any while none is.
void OptionButtonView::showTabStop() {
    const auto& button = *modelOf<forms::OptionButton>(*this);
    const auto others = othersOf(button);
    const bool stops = button.value() || std::ranges::none_of(others, &forms::OptionButton::value);
    button_.setFocusPolicy(button.tabStop() && stops ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionButtonView::showValue() {
    const auto& button = *modelOf<forms::OptionButton>(*this);
    if (button_.isChecked() != button.value()) {
        // An exclusive button cannot be unchecked; the model decides which one of the group is set.
        button_.setAutoExclusive(button.value());
        button_.setChecked(button.value());
        button_.setAutoExclusive(true);
    }
    showTabStop();
    for (const forms::OptionButton* other : othersOf(button)) {
        if (ControlView* view = form().viewOf(*other)) view->apply("TabStop");
    }
}

void OptionButtonView::show(std::string_view property) {
    if (property == "Caption") {
        button_.setText(toQt(modelOf<forms::OptionButton>(*this)->caption()));
    } else if (property == "Value") {
        showValue();
    } else if (property == "TabStop") {
        showTabStop();
    } else {
        ControlView::show(property);
    }
}

}  // namespace hx::qt
