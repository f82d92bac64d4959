// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

#include "adapters/qt/grid/grid_model.h"

namespace hx::qt {

/// The bar at the left of a grid: marks the current row with a triangle, while it is edited with a pencil; a click
/// selects rows.
class RecordSelector : public QHeaderView {
  public:
    RecordSelector(GridModel& model, QWidget* parent);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int row) const override;

  private:
    GridModel& model_;
};

}  // namespace hx::qt
