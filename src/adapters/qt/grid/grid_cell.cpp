// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_cell.h"

#include <algorithm>

namespace hx::qt {

bool hasButton(const GridModel& model, int column) {
    const forms::Grid* grid = model.grid();
    return grid != nullptr && grid->columns()[static_cast<std::size_t>(column)]->button();
}

QRect buttonRect(const QRect& cell) {
    const int width = std::min(cell.height() + 4, widestCellButton);
    return {cell.right() - width, cell.top() + 1, width, cell.height() - 2};
}

}  // namespace hx::qt
