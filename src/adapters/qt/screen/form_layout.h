// SPDX-License-Identifier: MIT
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <memory>
#include <vector>

#include "forms/layout.h"

namespace hx::qt {

class ControlView;
class FormView;

/// Gives the rows of a dialog to the toolkit's layout manager: labels, fields and buttons in columns, the dialog's own
/// buttons below. The window is as large as its texts and fonts want; only one with a row that grows can be resized.
class FormLayout {
  public:
    /// Places the views that stand in the rows and hides the others. `layout` and `form` are lent.
    FormLayout(const forms::Layout& layout, FormView& form);
    /// Gives labels, fields and buttons the widths that belong to their texts and fonts, when these have changed.
    void fit();

  private:
    /// The rows of one container.
    struct Area {
        QWidget* widget;
        std::unique_ptr<QGridLayout> grid;
        bool isPage = false;  ///< of a tab strip
        int rows = 0;
        bool grows = false;
    };
    [[nodiscard]] Area& areaOf(const forms::Control* container);
    [[nodiscard]] ControlView& place(forms::Control& control);
    void addRow(const forms::LayoutRow& row);
    void addLabel(Area& area, const forms::LayoutRow& row);
    void addField(Area& area, const forms::LayoutRow& row);
    void addButton(Area& area, const forms::LayoutRow& row);
    void addDialogButtons();
    void fitRow(const forms::LayoutRow& row);
    void alignWithFirstRow(const forms::LayoutRow& row);
    void alignLabels();
    void fitDialogButtons();
    void hideUnplaced();

    const forms::Layout& layout_;
    FormView& form_;
    std::vector<const ControlView*> placed_;
    QVBoxLayout root_;
    std::vector<Area> areas_;
    QHBoxLayout buttons_;
};

}  // namespace hx::qt
