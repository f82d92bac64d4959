// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace hx::forms {

class Control;
class CommandButton;

/// One row of a dialog, from left to right. Rows of one container stand below each other in the order in which they
/// were added; their labels, fields and buttons stand in columns.
struct LayoutRow {
    Control* container = nullptr;  ///< the page, frame or other control that the row lies in; null: the form itself
    Control* label = nullptr;      ///< none: the field takes the label's place too (check boxes, frames, tab strips)
    Control* field = nullptr;      ///< none: the label takes the field's place too
    Control* button = nullptr;     ///< a small one behind the field
    int characters = 0;            ///< the field is this long; 0: it reaches to the right edge
    bool grows = false;            ///< takes the height that is left over; a dialog with such a row can be resized
};

/// How a dialog is put together, without any measure: a view gives each row the room that its texts need. The
/// controls belong to the form. A dialog with rows is sized and placed by its view, not by Left, Top, Width and
/// Height of form and controls.
struct Layout {
    std::vector<LayoutRow> rows;
    std::vector<CommandButton*> buttons;  ///< below the rows, at the right end
    CommandButton* help = nullptr;        ///< beside them, at the left end
    [[nodiscard]] bool empty() const noexcept { return rows.empty() && buttons.empty() && help == nullptr; }
};

}  // namespace hx::forms
