// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_model.h"

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::qt {

namespace {

bool isNumber(ado::DataType type) { return type == ado::adSmallInt || type == ado::adInteger || type == ado::adDouble; }

bool showsNumbers(const forms::Column& column, const ado::Recordset* rows) {
    if (rows == nullptr || rows->state() != ado::adStateOpen || column.valueItems().translates()) return false;
    for (const ado::Column& field : rows->columns()) {
        if (automation::equalIgnoreCase(field.name, column.dataField())) return isNumber(field.type);
    }
    return false;
}

}  // namespace

GridModel::GridModel(forms::Grid& grid, const CellMarks* marks, GridErrors::Report report)
    : grid_(&grid), marks_(marks), errors_(std::move(report)) {
    refresh();
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QString GridModel::text(int row, int column) const noexcept {
    QString shown;
    errors_.read([&] { shown = toQt(grid_->text(row, column)); });
    return shown;
}

bool GridModel::isMarked(int column, const QString& text) const {
    if (marks_ == nullptr || grid_ == nullptr || text.isEmpty()) return false;
    return marks_->isMarked(grid_->columns()[static_cast<std::size_t>(column)]->dataField(), fromQt(text));
}

QString GridModel::reason(const QModelIndex& index) const {
    const QString shown = text(index.row(), index.column());
    return isMarked(index.column(), shown) ? marks_->reason(fromQt(shown)) : QString();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (grid_ == nullptr || !index.isValid()) return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole) return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(isRightAligned(index.column()) ? Qt::AlignRight : Qt::AlignLeft);
    }
    if (role == Qt::ToolTipRole) return plainToolTip(reason(index));
    if (role == Qt::AccessibleDescriptionRole) return reason(index);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (grid_ == nullptr || orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::DisplayRole) return toQt(grid_->columns()[static_cast<std::size_t>(section)]->caption());
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (grid_ == nullptr || !index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return grid_->editable(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (grid_ == nullptr || !index.isValid() || role != Qt::EditRole) return false;
    return errors_.run([&] {
        const std::string text = fromQt(value.toString());
        if (text != grid_->text(index.row(), index.column())) grid_->setText(index.row(), index.column(), text);
    });
}

void GridModel::refresh() {
    int rows = 0;
    std::vector<bool> rightAligned(grid_->columns().size());
    errors_.read([&] {
        rightAligned = readAlignments();
        rows = grid_->rowCount();
    });
    const int columns = static_cast<int>(rightAligned.size());
    followCurrentRow();
    if (rows == rows_ && columns == columns_) {
        rightAligned_ = std::move(rightAligned);
        if (rows > 0 && columns > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        return;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    rightAligned_ = std::move(rightAligned);
    endResetModel();
}

std::vector<bool> GridModel::readAlignments() const {
    std::vector<bool> rightAligned;
    for (const auto& column : grid_->columns()) {
        rightAligned.push_back(showsNumbers(*column, grid_->dataSource().get()));
    }
    return rightAligned;
}

void GridModel::refreshRow(int row) {
    if (row >= 0 && row < rows_ && columns_ > 0) emit dataChanged(index(row, 0), index(row, columns_ - 1));
}

void GridModel::detach() {
    beginResetModel();
    grid_ = nullptr;
    rows_ = columns_ = 0;
    currentRow_ = -1;
    endResetModel();
}

void GridModel::followCurrentRow() {
    int row = -1;
    if (grid_ != nullptr) errors_.read([&] { row = grid_->row(); });
    currentRow_ = row;
}

QModelIndex GridModel::currentCell() const {
    const int column = grid_ == nullptr ? -1 : grid_->col();
    return currentRow_ >= 0 && currentRow_ < rows_ && column >= 0 && column < columns_ ? index(currentRow_, column)
                                                                                       : QModelIndex();
}

}  // namespace hx::qt
