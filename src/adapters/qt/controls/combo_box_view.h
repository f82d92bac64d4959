// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/controls/combo_box.h"
#include "adapters/qt/controls/control_view.h"
#include "forms/combo_box.h"

namespace hx::qt {

class ComboBoxView : public ControlView {
  public:
    ComboBoxView(forms::ComboBox& box, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return combo_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"List"}; }

  private:
    void showList();
    void showChoice();
    void chosen(int index);
    void typed(const QString& text);
    ComboBox combo_;
};

}  // namespace hx::qt
