// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <memory>
#include <vector>

#include "adapters/qt/controls/band_menu.h"
#include "adapters/qt/controls/control_view.h"
#include "forms/bar.h"

namespace hx::qt {

/// The menu bar over the area that the control lies in. The control's own bounds are not used: it always spans the
/// upper edge.
class BarView : public ControlView {
  public:
    BarView(forms::Bar& bar, SurroundingForm& form, QWidget& area);
    [[nodiscard]] QWidget& widget() override { return menuBar_; }
    void layOut() override {}
    void containerResized() override;
    void detach() override;

  protected:
    void show(std::string_view property) override;

  private:
    void rebuild();
    void addMenu(forms::Tool& tool);
    void follow(forms::Tool& tool);
    void click(forms::Tool& tool);

    QMenuBar menuBar_;
    std::vector<forms::Tool*> tools_;
    std::vector<BandMenuPointer> menus_;
    std::vector<forms::Subscription> changes_;
    forms::Subscription toolsChanged_;
};

}  // namespace hx::qt
