#include "adapters/qt/option_button_view.h"

#include "adapters/qt/text.h"

namespace hx::qt {

OptionButtonView::OptionButtonView(forms::OptionButton& button, FormView& form, QWidget& area)
    : ControlView(button, form), button_(&area) {
    watch(button_);
    connect(&button_, &QRadioButton::toggled, this, &OptionButtonView::toggled);
}

void OptionButtonView::toggled(bool on) {
    const auto keep = model()->share();
    if (on) modelOf<forms::OptionButton>(*this)->click();
    apply("Value");
}

void OptionButtonView::show(std::string_view property) {
    const auto& button = *modelOf<forms::OptionButton>(*this);
    if (property == "Caption") {
        button_.setText(toQt(button.caption()));
    } else if (property == "Value") {
        if (button_.isChecked() == button.value()) return;
        // An exclusive button cannot be unchecked; the model decides which one of the group is set.
        button_.setAutoExclusive(button.value());
        button_.setChecked(button.value());
        button_.setAutoExclusive(true);
    } else {
        ControlView::show(property);
    }
}

}  // namespace hx::qt
