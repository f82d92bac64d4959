// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

#include "adapters/qt/text.h"
#include "report/report.h"

namespace hx::report {

/// The names of a report's recipes as a list, made when they are shown.
class RecipeNames : public QAbstractListModel {
  public:
    /// The report is lent.
    explicit RecipeNames(const Report& report) : report_(report) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(report_.recipes().size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return qt::toQt(report_.nameOf(static_cast<std::size_t>(index.row())));
    }

  private:
    const Report& report_;
};

}  // namespace hx::report
