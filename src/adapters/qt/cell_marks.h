// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string_view>

namespace hx::qt {

/// Which cells of grids are marked, by their colour and a tool tip: something is wrong with what they show.
class CellMarks {
  public:
    virtual ~CellMarks() = default;
    /// A cell with this text in a column that shows this field.
    [[nodiscard]] virtual bool isMarked(std::string_view field, std::string_view text) const = 0;
    /// Why a cell with this text is.
    [[nodiscard]] virtual QString reason(std::string_view text) const = 0;
};

}  // namespace hx::qt
