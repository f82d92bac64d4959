// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "editor/add_in.h"
#include "forms/grid.h"

namespace hx::editor {

class frmtabgrid;
class Menus;

/// The mouse in the member grid.
class MemberGridMouse {
  public:
    MemberGridMouse(frmtabgrid& window, Menus& menus, AddIn& addIn);

  private:
    void press(const forms::MouseEvent& mouse);
    void release(const forms::MouseEvent& mouse);
    void doubleClick();

    Menus& menus_;
    AddIn& addIn_;
    forms::Grid& grid_;
    double lastX_ = 0, lastY_ = 0;  // of the last press
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::editor
