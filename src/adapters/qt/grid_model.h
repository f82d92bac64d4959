#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "forms/grid.h"

namespace hx::qt {

/// A grid's rows for Qt's table views. It holds no row: each text is asked of the grid when it is shown.
class GridModel : public QAbstractTableModel {
  public:
    explicit GridModel(forms::Grid& grid);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    /// The row set or the columns are new. Cheap when only the contents are.
    void refresh();
    void refreshRow(int row);
    void refreshHeader(int column) { emit headerDataChanged(Qt::Horizontal, column, column); }
    void detach();

    /// The grid's current cell; invalid when there is none.
    [[nodiscard]] QModelIndex currentCell() const;
    [[nodiscard]] forms::Grid* grid() const noexcept { return grid_; }

  private:
    void readAlignments();
    forms::Grid* grid_;
    std::vector<Qt::Alignment> alignments_;
    int rows_ = 0;
    int columns_ = 0;
};

}  // namespace hx::qt
