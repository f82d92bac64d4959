// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>
#include <vector>

#include "adapters/qt/controls/control_view.h"
#include "forms/tool_bar.h"

namespace hx::qt {

class ToolBarView : public ControlView {
  public:
    ToolBarView(forms::ToolBar& bar, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return bar_; }
    void detach() override;

  protected:
    void show(std::string_view property) override;

  private:
    void addButton(forms::ToolButton& button);
    void click(forms::ToolButton& button);
    QToolBar bar_;
    std::vector<forms::Subscription> changes_;
};

}  // namespace hx::qt
