// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "forms/grid.h"

namespace hx::studio {

/// The marked rows of a grid as a table for other programs, with the columns that are shown, in their order; the
/// current row while none is marked.
class RowCopy {
  public:
    explicit RowCopy(forms::Grid& grid);

    /// A line a row, cells separated by tabulators.
    [[nodiscard]] QString text() const;
    /// A table with the columns' captions.
    [[nodiscard]] QString html() const;

  private:
    QStringList captions_;
    std::vector<QStringList> rows_;
};

}  // namespace hx::studio
