// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "forms/event.h"
#include "forms/input.h"

namespace hx::editor {

class frmtabgrid;

/// The vertical bar over the grid: dragging it with the left button sets the width of the grid's first split.
class SplitBar {
  public:
    explicit SplitBar(frmtabgrid& window);

    /// Puts the bar beside the first split, as high as the grid.
    void place();

  private:
    void press(const forms::MouseEvent& mouse);
    void move(const forms::MouseEvent& mouse);
    void release(const forms::MouseEvent& mouse);
    [[nodiscard]] double withinGrid(double splitWidth) const;

    frmtabgrid& window_;
    bool splitting_ = false;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
