// SPDX-License-Identifier: MIT
#include "studio/variables_model.h"

#include <utility>

#include "adapters/qt/text.h"

namespace hx::studio {

namespace {

constexpr auto columnOf(int number) { return static_cast<VariablesModel::Column>(number); }

}  // namespace

VariablesModel::VariablesModel(const qt::Wording& wording, Change change)
    : wording_(wording), change_(std::move(change)) {
    handOnSoon_.setSingleShot(true);
    handOnSoon_.setInterval(0);
    connect(&handOnSoon_, &QTimer::timeout, this, [this] { handOn(); });
}

void VariablesModel::take(std::shared_ptr<const project::VariableTable> table) {
    beginResetModel();
    table_ = std::move(table);
    stored_.clear();
    arrange();
    endResetModel();
}

void VariablesModel::setTitles(const QStringList& titles) {
    titles_ = titles;
    emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
}

void VariablesModel::setWish(const Wish& wish) {
    beginResetModel();
    wish_ = wish;
    arrange();
    endResetModel();
}

void VariablesModel::arrange() { rows_ = table_ ? table_->arranged(wish_) : std::vector<std::uint32_t>(); }

void VariablesModel::sort(int column, Qt::SortOrder order) {
    Wish wish = wish_;
    wish.order = columnOf(column);
    wish.descending = order == Qt::DescendingOrder;
    setWish(wish);
}

void VariablesModel::show(ado::Key key, Column column, const std::string& text) {
    stored_[{key, column}] = text;
    if (const int row = rowOf(key); row >= 0) emit dataChanged(index(row, 0), index(row, columns - 1));
}

void VariablesModel::handOn() {
    for (const Edit& edit : std::exchange(typed_, {})) change_(edit);
}

std::string VariablesModel::text(int row, Column column) const {
    const auto stored = stored_.find({key(row), column});
    return stored != stored_.end() ? stored->second : std::string(table_->text(numberAt(row), column));
}

int VariablesModel::rowOf(ado::Key key) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (table_->key(rows_[row]) == key) return static_cast<int>(row);
    }
    return -1;
}

int VariablesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant VariablesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Column column = columnOf(index.column());
    const bool isCount = column == Column::uses;
    if (role == Qt::TextAlignmentRole && isCount) return int{Qt::AlignRight | Qt::AlignVCenter};
    if (role == Qt::ToolTipRole) return qt::plainToolTip(data(index, Qt::DisplayRole).toString());
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return isCount ? wording_.number(uses(index.row())) : qt::toQt(text(index.row(), column));
}

QVariant VariablesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) return titles_.value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags VariablesModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.isValid() && columnOf(index.column()) != Column::uses ? usual | Qt::ItemIsEditable : usual;
}

bool VariablesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !index.isValid()) return false;
    const Column column = columnOf(index.column());
    const QString typed = column == Column::name ? value.toString().trimmed() : value.toString();
    std::string before = text(index.row(), column), after = qt::fromQt(typed);
    if (before == after) return false;
    typed_.push_back({key(index.row()), column, std::move(before), std::move(after), uses(index.row())});
    handOnSoon_.start();
    return true;
}

}  // namespace hx::studio
