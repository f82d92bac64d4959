// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelectionModel>

#include "adapters/qt/grid/grid_model.h"

namespace hx::qt {

/// Keeps the views' current cell and selected rows and the grid's the same. The grid decides whether its current row
/// can be left. What fails is reported, and the views follow the grid again.
class GridSelection : public QItemSelectionModel {
  public:
    explicit GridSelection(GridModel& model);

    void setCurrentIndex(const QModelIndex& index, QItemSelectionModel::SelectionFlags command) override;
    /// Takes the current cell, or the selected rows, from the grid.
    void followCurrentCell();
    void followSelectedRows();

  private:
    bool goTo(int row, int column);
    [[nodiscard]] QItemSelection selectedIn(forms::Grid& grid) const;
    void report();
    GridModel& model_;
    bool following_ = false;
    bool reporting_ = false;
};

}  // namespace hx::qt
