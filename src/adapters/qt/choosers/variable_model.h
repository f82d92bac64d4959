// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <array>
#include <vector>

#include "adapters/qt/variable_list.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// The variables of a list that a filter lets through, with name, type and comment. A row is a shown one, a number one
/// of the list.
class VariableModel : public QAbstractTableModel {
  public:
    static constexpr int nameColumn = 0, typeColumn = 1, commentColumn = 2;

    VariableModel(VariableList list, const Wording& wording);
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] const VariableList& list() const noexcept { return list_; }
    /// Shows what matches; all rows are new.
    void search(const QString& text);
    [[nodiscard]] std::size_t numberOf(int row) const { return shown_[static_cast<std::size_t>(row)]; }
    /// -1 for one that is not shown.
    [[nodiscard]] int rowOf(std::size_t number) const;
    /// Of the shown ones, ignoring case; -1 for none.
    [[nodiscard]] int find(const QString& name) const;

    /// The longest text of a column, shown or not.
    [[nodiscard]] QString longest(int column) const;

  protected:
    /// What a derived list lets through beside the words.
    [[nodiscard]] virtual bool offers(std::size_t) const { return true; }
    /// Puts variables before all others.
    void prepend(const std::vector<Variable>& variables);

  private:
    void collect();
    VariableList list_;
    QString text_;
    std::vector<std::size_t> shown_;  // ascending
    std::array<QString, 3> headers_;
};

}  // namespace hx::qt
