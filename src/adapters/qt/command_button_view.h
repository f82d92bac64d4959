#pragma once

#include <QPushButton>

#include "adapters/qt/control_view.h"
#include "forms/simple_controls.h"

namespace hx::qt {

class CommandButtonView : public ControlView {
  public:
    CommandButtonView(forms::CommandButton& button, FormView& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return button_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption", "Default"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    void clicked();
    QPushButton button_;
};

}  // namespace hx::qt
