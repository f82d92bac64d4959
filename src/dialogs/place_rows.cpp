#include "dialogs/place_rows.h"

#include <algorithm>
#include <array>

#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/tab_strip.h"

namespace hx::dialogs {

using forms::Control;
using forms::LayoutRow;

namespace {

// Twips.
constexpr double margin = 120, gap = 90, lineHeight = 315, labelWidth = 2400, chooserWidth = 375;
constexpr double frameTop = 270, tabTop = 375, listHeight = 4200;
constexpr double buttonWidth = 1215, buttonHeight = 375, dialogWidth = 7200;

/// Places the rows of one dialog, from the outside in; heights come back from the inside.
class Placer {
  public:
    explicit Placer(forms::Form& form) : form_(form) {}

    void place() {
        const double bottom = placeRowsIn(nullptr, margin, dialogWidth);
        const double top = placeButtons(bottom);
        form_.move(form_.left(), form_.top(), dialogWidth, top + buttonHeight + margin);
    }

  private:
    // Gives the bottom edge of the last row.
    double placeRowsIn(const Control* container, double top, double width) {
        for (const LayoutRow& row : form_.layout().rows) {
            if (row.container == container) top += placeRow(row, top, width) + gap;
        }
        return top - gap;
    }

    double placeRow(const LayoutRow& row, double top, double width) {
        const double left = row.label != nullptr ? margin + labelWidth : margin;
        const double right = width - margin - (row.button != nullptr ? chooserWidth + gap : 0);
        const double height = row.field != nullptr ? placeField(row, left, top, right - left) : lineHeight;
        if (row.label != nullptr)
            row.label->move(margin, top, (row.field != nullptr ? left - gap : right) - margin, lineHeight);
        if (row.button != nullptr) row.button->move(width - margin - chooserWidth, top, chooserWidth, lineHeight);
        return height;
    }

    double placeField(const LayoutRow& row, double left, double top, double width) {
        Control& field = *row.field;
        const double height = heightOf(field, row.grows, width);
        field.move(left, top, width, height);
        return height;
    }

    double heightOf(Control& field, bool grows, double width) {
        if (auto* tabs = dynamic_cast<forms::TabStrip*>(&field)) return heightOfTabs(*tabs, width);
        if (auto* frame = dynamic_cast<forms::Frame*>(&field)) {
            const double top = frame->caption().empty() && frame->tag().empty() ? 0 : frameTop;
            return placeRowsIn(frame, top, width) + (top > 0 ? margin : 0);
        }
        return grows ? listHeight : lineHeight;
    }

    double heightOfTabs(forms::TabStrip& tabs, double width) {
        double height = 0;
        for (std::int16_t i = 0; i < tabs.tabs(); ++i)
            height = std::max(height, placeRowsIn(&tabs.page(i), margin, width));
        height += margin;
        for (std::int16_t i = 0; i < tabs.tabs(); ++i) tabs.page(i).move(tabs.page(i).left(), tabTop, width, height);
        return tabTop + height;
    }

    // Help at the left, the others at the right; gives their upper edge.
    double placeButtons(double bottom) {
        const double top = bottom + 2 * gap;
        double left = dialogWidth - margin;
        const auto& buttons = form_.layout().buttons;
        for (auto button = buttons.rbegin(); button != buttons.rend(); ++button) {
            left -= buttonWidth;
            (*button)->move(left, top, buttonWidth, buttonHeight);
            left -= gap;
        }
        if (form_.layout().help != nullptr) form_.layout().help->move(margin, top, buttonWidth, buttonHeight);
        return top;
    }

    forms::Form& form_;
};

}  // namespace

void placeRows(forms::Form& form) { Placer(form).place(); }

}  // namespace hx::dialogs
