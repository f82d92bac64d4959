#include "adapters/qt/choosers/multi_items_model.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QScopedValueRollback>
#include <unordered_set>

#include "adapters/qt/text.h"
#include "automation/text.h"

namespace hx::qt {

namespace {

/// The checked names that a list does not have, each once.
std::vector<Variable> missingIn(const VariableList& list, const forms::HXMultiItems& items, const QString& comment) {
    std::vector<Variable> missing;
    std::unordered_set<std::string> seen;
    for (const std::string& name : items.selectedItems().value_or(std::vector<std::string>())) {
        if (list.find(name) || !seen.insert(automation::foldCase(name)).second) continue;
        missing.push_back({name, {}, fromQt(comment)});
    }
    return missing;
}

std::unique_ptr<const VariableList> joined(std::vector<Variable> first, std::vector<Variable> rest) {
    first.insert(first.end(), std::make_move_iterator(rest.begin()), std::make_move_iterator(rest.end()));
    return std::make_unique<const VariableList>(std::move(first));
}

}  // namespace

MultiItemsModel::MultiItemsModel(forms::HXMultiItems& items, std::vector<Variable> variables, const Wording& wording)
    : VariableModel(std::make_unique<const VariableList>(std::move(variables)), wording),
      items_(&items),
      missingText_(wording.text(Word::missingVariable)),
      missing_(0) {
    refresh();
}

// What is checked here stands in the list: only a selection from outside can bring names that do not.
void MultiItemsModel::refresh() {
    if (items_ == nullptr) return;
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    if (checking_) return;
    auto missing = missingIn(list(), *items_, missingText_);
    if (missing.empty()) return;
    missing_ += missing.size();
    std::vector<Variable> known;
    known.reserve(list().size());
    for (std::size_t number = 0; number < list().size(); ++number) known.push_back(list()[number]);
    replaceList(joined(std::move(missing), std::move(known)));
}

bool MultiItemsModel::offers(std::size_t number) const { return !onlyChecked_ || isChecked(list()[number].name); }

bool MultiItemsModel::isChecked(int row) const { return isChecked(nameOf(row)); }

std::size_t MultiItemsModel::missingCount() const {
    std::size_t count = 0;
    for (std::size_t number = 0; number < missing_; ++number) count += isChecked(list()[number].name) ? 1U : 0U;
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
    check(std::span(&nameOf(index.row()), 1), value.toInt() == Qt::Checked);
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
