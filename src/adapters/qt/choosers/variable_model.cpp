// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/variable_model.h"

#include <algorithm>
#include <numeric>

#include "adapters/qt/text.h"
#include "automation/word_filter.h"

namespace hx::qt {

namespace {

constexpr std::array fields = {VariableField::name, VariableField::type, VariableField::comment};

}  // namespace

VariableModel::VariableModel(VariableList list, const Wording& wording)
    : list_(std::move(list)),
      shown_(list_.size()),
      headers_{wording.translate("dialogs", "Name"), wording.translate("dialogs", "Type"),
               wording.translate("dialogs", "Comment")} {
    std::iota(shown_.begin(), shown_.end(), std::size_t{0});
}

int VariableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int VariableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(fields.size());
}

QVariant VariableModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid()) return {};
    return toQt(list_.text(numberOf(index.row()), fields[static_cast<std::size_t>(index.column())]));
}

QVariant VariableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return headers_[static_cast<std::size_t>(section)];
}

void VariableModel::search(const QString& text) {
    beginResetModel();
    text_ = text;
    collect();
    endResetModel();
}

void VariableModel::prepend(const std::vector<Variable>& variables) {
    beginResetModel();
    list_.prepend(variables);
    collect();
    endResetModel();
}

void VariableModel::collect() {
    const automation::WordFilter filter(fromQt(text_));
    shown_.clear();
    for (std::size_t number = 0; number < list_.size(); ++number) {
        if (offers(number) && (filter.holdsForAll() || filter.matches(list_.folded(number)))) shown_.push_back(number);
    }
}

QString VariableModel::longest(int column) const {
    return toQt(list_.longest(fields[static_cast<std::size_t>(column)]));
}

int VariableModel::rowOf(std::size_t number) const {
    const auto found = std::ranges::lower_bound(shown_, number);
    return found == shown_.end() || *found != number ? -1 : static_cast<int>(found - shown_.begin());
}

int VariableModel::find(const QString& name) const {
    const auto number = list_.find(fromQt(name));
    return number ? rowOf(*number) : -1;
}

}  // namespace hx::qt
