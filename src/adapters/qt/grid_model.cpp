#include "adapters/qt/grid_model.h"

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::qt {

namespace {

bool isNumber(ado::DataType type) { return type == ado::adSmallInt || type == ado::adInteger || type == ado::adDouble; }

Qt::Alignment alignmentOf(const forms::Column& column, const ado::Recordset* rows) {
    if (rows == nullptr || rows->state() != ado::adStateOpen || column.valueItems().translates()) return Qt::AlignLeft;
    for (const ado::Column& field : rows->columns()) {
        if (automation::equalIgnoreCase(field.name, column.dataField())) {
            return isNumber(field.type) ? Qt::AlignRight : Qt::AlignLeft;
        }
    }
    return Qt::AlignLeft;
}

}  // namespace

GridModel::GridModel(forms::Grid& grid) : grid_(&grid) { refresh(); }

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns_; }

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (grid_ == nullptr || !index.isValid()) return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole) return toQt(grid_->text(index.row(), index.column()));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignments_[static_cast<std::size_t>(index.column())]);
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (grid_ == nullptr || orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::DisplayRole) return toQt(grid_->columns()[static_cast<std::size_t>(section)]->caption());
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (grid_ == nullptr || !index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return grid_->editable(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (grid_ == nullptr || !index.isValid() || role != Qt::EditRole) return false;
    const std::string text = fromQt(value.toString());
    if (text == grid_->text(index.row(), index.column())) return true;
    grid_->setText(index.row(), index.column(), text);
    return true;
}

void GridModel::refresh() {
    const int rows = grid_->rowCount();
    const int columns = static_cast<int>(grid_->columns().size());
    if (rows == rows_ && columns == columns_) {
        readAlignments();
        if (rows > 0 && columns > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        return;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    readAlignments();
    endResetModel();
}

void GridModel::readAlignments() {
    alignments_.clear();
    for (const auto& column : grid_->columns()) alignments_.push_back(alignmentOf(*column, grid_->dataSource().get()));
}

void GridModel::refreshRow(int row) {
    if (row >= 0 && row < rows_ && columns_ > 0) emit dataChanged(index(row, 0), index(row, columns_ - 1));
}

void GridModel::detach() {
    beginResetModel();
    grid_ = nullptr;
    rows_ = columns_ = 0;
    endResetModel();
}

QModelIndex GridModel::currentCell() const {
    const int row = grid_->row();
    const int column = grid_->col();
    return row >= 0 && row < rows_ && column < columns_ ? index(row, column) : QModelIndex();
}

}  // namespace hx::qt
