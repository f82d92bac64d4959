// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QVBoxLayout>
#include <optional>

#include "adapters/qt/choosers/variable_model.h"
#include "adapters/qt/choosers/variable_table.h"
#include "adapters/qt/controls/plain_label.h"

namespace hx::qt {

/// Chooses one variable: a search field over a list.
class ItemDialog : public QDialog {
  public:
    ItemDialog(const Wording& wording, VariableList variables, QWidget* owner);
    /// Selects the variable of this name, when there is one.
    void select(const QString& name);
    [[nodiscard]] QString selected() const;

  private:
    void setUpTable();
    void setUpButtons(const Wording& wording);
    void search(const QString& text);
    void refresh();

    const Wording& wording_;
    VariableModel model_;
    QVBoxLayout column_{this};
    QHBoxLayout searchRow_;
    PlainLabel searchLabel_;
    QLineEdit searchField_;
    VariableTable table_;
    PlainLabel count_;
    QDialogButtonBox buttons_;
    std::optional<std::size_t> chosen_;  // number in the list
};

}  // namespace hx::qt
