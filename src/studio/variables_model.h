// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "adapters/qt/wording.h"
#include "project/variable_table.h"

namespace hx::studio {

/// The variable list for Qt's table view: what of it is wanted, in the order that is wanted. What is typed is handed
/// on when the view has done with its field; it is shown once it is stored.
class VariablesModel : public QAbstractTableModel {
  public:
    using Column = project::VariableTable::Column;
    using Wish = project::VariableTable::Wish;
    static constexpr int columns = 4;

    /// A new text for a column of a variable.
    struct Edit {
        ado::Key key;
        Column column;
        std::string before, after;
        std::uint32_t uses;
    };
    using Change = std::function<void(const Edit& edit)>;

    /// The wording is lent.
    VariablesModel(const qt::Wording& wording, Change change);

    /// Null for none.
    void take(std::shared_ptr<const project::VariableTable> table);
    [[nodiscard]] const project::VariableTable* table() const noexcept { return table_.get(); }
    void setTitles(const QStringList& titles);
    [[nodiscard]] const Wish& wish() const noexcept { return wish_; }
    void setWish(const Wish& wish);
    /// A text that has been stored since the list was read.
    void show(ado::Key key, Column column, const std::string& text);
    /// Hands on what has been typed.
    void handOn();

    [[nodiscard]] ado::Key key(int row) const { return table_->key(numberAt(row)); }
    [[nodiscard]] std::uint32_t uses(int row) const { return table_->uses(numberAt(row)); }
    [[nodiscard]] std::string text(int row, Column column) const;
    /// -1 when it is not shown.
    [[nodiscard]] int rowOf(ado::Key key) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& = {}) const override { return columns; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    void sort(int column, Qt::SortOrder order) override;

  private:
    [[nodiscard]] std::uint32_t numberAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    void arrange();

    const qt::Wording& wording_;
    Change change_;
    QStringList titles_;
    Wish wish_;
    std::shared_ptr<const project::VariableTable> table_;
    std::vector<std::uint32_t> rows_;  // numbers of the variables
    std::map<std::pair<ado::Key, Column>, std::string> stored_;
    std::vector<Edit> typed_;
    QTimer handOnSoon_;
};

}  // namespace hx::studio
