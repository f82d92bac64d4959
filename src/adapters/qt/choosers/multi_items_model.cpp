// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/multi_items_model.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QScopedValueRollback>
#include <array>

#include "adapters/qt/text.h"

namespace hx::qt {

MultiItemsModel::MultiItemsModel(forms::HXMultiItems& items, VariableList variables, const Wording& wording)
    : VariableModel(std::move(variables), wording),
      items_(&items),
      missingText_(wording.translate("dialogs", "missing in the variable list")),
      missing_(0) {
    refresh();
}

// What is checked here stands in the list: only a selection from outside can bring names that do not.
void MultiItemsModel::refresh() {
    if (items_ == nullptr) return;
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    if (checking_) return;
    std::vector<Variable> missing;
    const auto known = [this](std::size_t number) { return list().foldedName(number); };
    for (std::string& name : items_->selectedBeside(list().size(), known)) {
        missing.push_back({std::move(name), {}, fromQt(missingText_)});
    }
    if (missing.empty()) return;
    missing_ += missing.size();
    prepend(missing);
}

bool MultiItemsModel::offers(std::size_t number) const { return !onlyChecked_ || isNumberChecked(number); }

std::size_t MultiItemsModel::missingCount() const {
    std::size_t count = 0;
    for (std::size_t number = 0; number < missing_; ++number) count += isNumberChecked(number) ? 1U : 0U;
    return count;
}

QVariant MultiItemsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::CheckStateRole && index.column() == nameColumn) {
        return isChecked(index.row()) ? Qt::Checked : Qt::Unchecked;
    }
    if (numberOf(index.row()) < missing_) {
        if (role == Qt::ForegroundRole) return QApplication::palette().brush(QPalette::PlaceholderText);
        if (role == Qt::FontRole) {
            QFont font;
            font.setItalic(true);
            return font;
        }
    }
    return VariableModel::data(index, role);
}

bool MultiItemsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid() || items_ == nullptr) return false;
    check(std::array{std::string(nameOf(index.row()))}, value.toInt() == Qt::Checked);
    return true;
}

void MultiItemsModel::check(std::span<const std::string> names, bool checked) {
    const QScopedValueRollback checking(checking_, true);
    items_->select(names, checked);
}

Qt::ItemFlags MultiItemsModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = VariableModel::flags(index);
    return index.isValid() && index.column() == nameColumn ? usual | Qt::ItemIsUserCheckable : usual;
}

}  // namespace hx::qt
