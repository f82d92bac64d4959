// SPDX-License-Identifier: MIT
#include "editor/member_grid_mouse.h"

#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/menus.h"
#include "editor/tools.h"

namespace hx::editor {

MemberGridMouse::MemberGridMouse(frmtabgrid& window, Menus& menus, AddIn& addIn)
    : menus_(menus), addIn_(addIn), grid_(*window.tdbRM) {
    subscriptions_.push_back(grid_.mouseDownEvent.subscribe([this](const forms::MouseEvent& mouse) { press(mouse); }));
    subscriptions_.push_back(grid_.mouseUpEvent.subscribe([this](const forms::MouseEvent& mouse) { release(mouse); }));
    subscriptions_.push_back(grid_.doubleClickEvent.subscribe([this] { doubleClick(); }));
}

void MemberGridMouse::press(const forms::MouseEvent& mouse) {
    lastX_ = mouse.x;
    lastY_ = mouse.y;
    if (mouse.button == forms::button::left && !grid_.hasFocus()) grid_.setFocus();
}

void MemberGridMouse::release(const forms::MouseEvent& mouse) {
    if (mouse.button != forms::button::right) return;
    guard(addIn_, "tdbRM_MouseUp", [this] { menus_.popUpMembers(); });
}

void MemberGridMouse::doubleClick() {
    if (grid_.hitTest(lastX_, lastY_) != forms::GridHit::cell) return;
    guard(addIn_, "tdbRM_DblClick", [this] { menus_.runMemberTool(tool::memberEditSubRecipe); });
}

}  // namespace hx::editor
