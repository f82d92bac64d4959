// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <functional>

#include "studio/variables_model.h"

namespace hx::studio {

/// The keys of the list. They are its own while it has the keyboard.
struct VariablesKeys {
    std::function<void()> add, remove, copy, paste, whereUsed, filter;
};

/// Shows the variables in rows; cells are edited in place.
class VariablesView : public QTableView {
  public:
    /// The model is lent.
    VariablesView(VariablesModel& model, VariablesKeys keys);

    /// Hands on what is being typed.
    void finishEdit();
    [[nodiscard]] bool isEditing() const { return state() == EditingState; }
    /// Called when a cell is not edited any more.
    std::function<void()> edited = [] {};
    /// In ascending order.
    [[nodiscard]] std::vector<int> selectedRows() const;

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    [[nodiscard]] const std::function<void()>* ofKey(const QKeyEvent& event) const;

    VariablesModel& model_;
    VariablesKeys keys_;
};

}  // namespace hx::studio
