// SPDX-License-Identifier: MIT
#include "editor/column_order.h"

#include <algorithm>

#include "automation/convert.h"
#include "automation/text.h"

namespace hx::editor {

std::string columnOrderText(const forms::Grid& grid) {
    std::string text;
    for (const auto& column : grid.columns()) text += "," + std::to_string(column->order());
    return text;
}

void applyColumnOrder(forms::Grid& grid, std::string_view text) {
    auto columns = grid.columns();  // kept: handlers hear of each new order
    const std::vector<std::string> elements = automation::split(text, ',');
    const std::size_t count = std::min(elements.size() - 1, columns.size());
    for (std::size_t i = 0; i < count; ++i) {
        const double order = automation::leadingNumber(elements[i + 1]);
        if (order >= 0 && order < static_cast<double>(columns.size())) {
            columns[i]->setOrder(automation::roundToInt16(order));
        }
    }
}

}  // namespace hx::editor
