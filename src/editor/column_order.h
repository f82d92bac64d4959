// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "forms/grid.h"

/// The order of a grid's columns as one text: for each column its place in the display, each number behind a ",".
namespace hx::editor {

[[nodiscard]] std::string columnOrderText(const forms::Grid& grid);
/// What comes before the first "," is skipped. A number that is no place of the grid, and numbers beyond the last
/// column, change nothing.
void applyColumnOrder(forms::Grid& grid, std::string_view text);

}  // namespace hx::editor
