// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <memory>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "adapters/qt/controls/plain_label.h"
#include "forms/status_bar.h"

namespace hx::qt {

class StatusBarView : public ControlView {
  public:
    StatusBarView(forms::StatusBar& bar, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return frame_; }
    void layOut() override;
    void detach() override;

  protected:
    void show(std::string_view property) override;

  private:
    void fitHeight();
    QFrame frame_;
    QHBoxLayout row_;
    std::vector<std::unique_ptr<PlainLabel>> panels_;
    std::vector<forms::Subscription> changes_;
};

}  // namespace hx::qt
