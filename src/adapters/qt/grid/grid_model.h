// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "adapters/qt/cell_marks.h"
#include "adapters/qt/grid/grid_errors.h"
#include "forms/grid.h"

namespace hx::qt {

/// A grid's rows for Qt's table views. It holds no row: each text is asked of the grid when it is shown. It throws
/// nothing: what fails is reported.
class GridModel : public QAbstractTableModel {
  public:
    /// The marks are lent; null for none.
    GridModel(forms::Grid& grid, const CellMarks* marks, GridErrors::Report report);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// The text of a cell as shown; empty when it cannot be read.
    [[nodiscard]] QString text(int row, int column) const noexcept;
    /// Whether a cell of the column that shows this text is marked.
    [[nodiscard]] bool isMarked(int column, const QString& text) const;
    [[nodiscard]] bool isRightAligned(int column) const { return rightAligned_[static_cast<std::size_t>(column)]; }
    [[nodiscard]] GridErrors& errors() const noexcept { return errors_; }

    /// The row set or the columns are new. Cheap when only the contents are. Without rows while they cannot be counted.
    void refresh();
    void refreshRow(int row);
    void refreshHeader(int column) { emit headerDataChanged(Qt::Horizontal, column, column); }
    void detach();

    /// Asks the grid for its current row.
    void followCurrentRow();
    /// The row as it was asked for last, -1 for none.
    [[nodiscard]] int currentRow() const noexcept { return currentRow_; }
    /// The cell in that row; invalid when there is none.
    [[nodiscard]] QModelIndex currentCell() const;
    [[nodiscard]] forms::Grid* grid() const noexcept { return grid_; }

  private:
    [[nodiscard]] std::vector<bool> readAlignments() const;
    /// Why a cell is marked; empty when it is not.
    [[nodiscard]] QString reason(const QModelIndex& index) const;
    forms::Grid* grid_;
    const CellMarks* marks_;
    mutable GridErrors errors_;
    std::vector<bool> rightAligned_;
    int rows_ = 0;
    int columns_ = 0;
    int currentRow_ = -1;
};

}  // namespace hx::qt
