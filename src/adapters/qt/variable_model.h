#pragma once

#include <QAbstractTableModel>
#include <array>
#include <vector>

#include "adapters/qt/variable_source.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// A list of variables with name, type and comment.
class VariableModel : public QAbstractTableModel {
  public:
    VariableModel(std::vector<Variable> variables, const Wording& wording);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// The row of a name ignoring case, -1 for none.
    [[nodiscard]] int find(const QString& name) const;

  private:
    std::vector<Variable> variables_;
    std::array<QString, 3> headers_;
};

}  // namespace hx::qt
