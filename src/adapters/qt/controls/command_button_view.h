// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/controls/push_button.h"
#include "forms/command_button.h"

namespace hx::qt {

/// A push button.
class CommandButtonView : public ControlView {
  public:
    CommandButtonView(forms::CommandButton& button, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return button_; }
    /// For a button that stands behind a field.
    void makeSmall(int height) { button_.makeSmall(height); }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption", "Default"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    void clicked();
    PushButton button_;
};

}  // namespace hx::qt
