// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "adapters/qt/choosers/variable_model.h"
#include "forms/multi_items.h"

namespace hx::qt {

/// The variables with a check mark each. Names that are checked but stand in no list come first, and are said to be
/// missing; one that is unchecked stays in the list, so that it can be checked again.
class MultiItemsModel : public VariableModel {
  public:
    /// `items` is lent until forget().
    MultiItemsModel(forms::HXMultiItems& items, VariableList variables, const Wording& wording);
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    [[nodiscard]] bool isChecked(int row) const { return isNumberChecked(numberOf(row)); }
    [[nodiscard]] std::string_view nameOf(int row) const { return list().text(numberOf(row), VariableField::name); }
    /// Checks or unchecks names.
    void check(std::span<const std::string> names, bool checked);
    /// How many of the checked names are missing.
    [[nodiscard]] std::size_t missingCount() const;
    /// Offers the checked ones alone, from the next search on.
    void setOnlyChecked(bool only) noexcept { onlyChecked_ = only; }
    /// The selection has changed.
    void refresh();
    void forget() noexcept { items_ = nullptr; }

  protected:
    [[nodiscard]] bool offers(std::size_t number) const override;

  private:
    [[nodiscard]] bool isNumberChecked(std::size_t number) const {
        return items_ != nullptr && items_->isSelectedFolded(list().foldedName(number));
    }
    forms::HXMultiItems* items_;
    const QString missingText_;
    std::size_t missing_;  // the first rows of the list
    bool checking_ = false;
    bool onlyChecked_ = false;
};

}  // namespace hx::qt
