// SPDX-License-Identifier: MIT
#pragma once

#include <QRadioButton>

#include "adapters/qt/controls/control_view.h"
#include "forms/option_button.h"

namespace hx::qt {

class OptionButtonView : public ControlView {
  public:
    OptionButtonView(forms::OptionButton& button, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return button_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption", "Value"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    void toggled(bool on);
    void showValue();
    void showTabStop();
    QRadioButton button_;
};

}  // namespace hx::qt
