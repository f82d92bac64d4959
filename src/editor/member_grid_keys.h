// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "editor/add_in.h"
#include "forms/grid.h"

namespace hx::editor {

class frmtabgrid;
class MSurfingGrid;
class Menus;

/// The keys of the member grid. Commands run as tools of the bar, as if they were clicked.
class MemberGridKeys {
  public:
    MemberGridKeys(frmtabgrid& window, MSurfingGrid& members, Menus& menus, AddIn& addIn);

  private:
    using Action = void (MemberGridKeys::*)(forms::KeyEvent&);
    struct Row;

    void run(std::span<const Row> rows, forms::KeyEvent& event);
    void keyPress(forms::KeyPress& event);

    void selectOneRow(forms::KeyEvent& event);
    void extendSelection(forms::KeyEvent& event);
    void keepSelection(forms::KeyEvent& event);
    void newMember(forms::KeyEvent& event);
    void editMember(forms::KeyEvent& event);
    void deleteMembers(forms::KeyEvent& event);
    void windowKey(forms::KeyEvent& event);
    void swallow(forms::KeyEvent& event);
    void firstColumn(forms::KeyEvent& event);
    void lastColumn(forms::KeyEvent& event);
    void neighbour(forms::KeyEvent& event);

    frmtabgrid& window_;
    MSurfingGrid& members_;
    Menus& menus_;
    AddIn& addIn_;
    forms::Grid& grid_;
    std::vector<forms::Subscription> subscriptions_;
};

/// The visible column next to one in the display, to its left or right; -1 when there is none.
[[nodiscard]] std::int32_t neighbourColumn(const forms::Grid& grid, std::int32_t column, bool toTheLeft);

}  // namespace hx::editor
