// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

#include "adapters/qt/controls/control_view.h"
#include "forms/frame.h"

namespace hx::qt {

class FrameView : public ControlView {
  public:
    FrameView(forms::Frame& frame, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return box_; }

  protected:
    void show(std::string_view property) override;
    [[nodiscard]] std::vector<std::string_view> ownProperties() const override { return {"Caption"}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }

  private:
    QGroupBox box_;
};

}  // namespace hx::qt
