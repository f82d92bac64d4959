// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>

#include "adapters/qt/controls/control_view.h"
#include "forms/check_box.h"

namespace hx::qt {

class CheckBoxView : public ControlView {
  public:
    CheckBoxView(forms::CheckBox& box, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return box_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption", "Value"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    void clicked();
    QCheckBox box_;
};

}  // namespace hx::qt
