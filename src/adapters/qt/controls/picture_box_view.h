// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "adapters/qt/controls/control_view.h"
#include "forms/picture_box.h"

namespace hx::qt {

/// A plain area that reports the mouse: higher than wide it is a bar between two parts, to be dragged.
class PictureBoxView : public ControlView {
  public:
    PictureBoxView(forms::PictureBox& box, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return area_; }
    void layOut() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void paint();
    QWidget area_;
};

}  // namespace hx::qt
