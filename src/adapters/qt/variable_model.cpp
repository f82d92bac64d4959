#include "adapters/qt/variable_model.h"

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr std::array<std::string Variable::*, 3> fields = {&Variable::name, &Variable::type, &Variable::comment};

}  // namespace

VariableModel::VariableModel(std::vector<Variable> variables, const Wording& wording)
    : variables_(std::move(variables)),
      headers_{wording.text(Word::variableName), wording.text(Word::variableType),
               wording.text(Word::variableComment)} {}

int VariableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(variables_.size());
}

int VariableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(fields.size());
}

QVariant VariableModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid()) return {};
    const Variable& variable = variables_[static_cast<std::size_t>(index.row())];
    return toQt(variable.*fields[static_cast<std::size_t>(index.column())]);
}

QVariant VariableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return headers_[static_cast<std::size_t>(section)];
}

int VariableModel::find(const QString& name) const {
    for (std::size_t row = 0; row < variables_.size(); ++row) {
        if (toQt(variables_[row].name).compare(name, Qt::CaseInsensitive) == 0) return static_cast<int>(row);
    }
    return -1;
}

}  // namespace hx::qt
