// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

#include "adapters/qt/grid/grid_model.h"

namespace hx::qt {

/// Makes the editors of a grid's cells, and tells how much room a cell wants.
class GridDelegate : public QStyledItemDelegate {
  public:
    explicit GridDelegate(GridModel& model) : model_(model) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Beside the cell's button.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

  private:
    GridModel& model_;
};

}  // namespace hx::qt
