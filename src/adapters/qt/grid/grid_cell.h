// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include "adapters/qt/grid/grid_model.h"

namespace hx::qt {

/// Between the edge of a cell and its text, in pixels.
inline constexpr int cellMargin = 4;
inline constexpr int widestCellButton = 24;

/// Whether the cells of a column have a button.
[[nodiscard]] bool hasButton(const GridModel& model, int column);
/// It stands at the right end of the cell.
[[nodiscard]] QRect buttonRect(const QRect& cell);

}  // namespace hx::qt
