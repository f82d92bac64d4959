// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QTableView>
#include <functional>
#include <utility>

#include "adapters/qt/choosers/variable_model.h"

namespace hx::qt {

/// Shows variables in rows. What is typed in it goes to the search field, what moves in the list goes from there to it.
class VariableTable : public QTableView {
  public:
    /// Both are lent.
    VariableTable(VariableModel& model, QLineEdit& search);
    [[nodiscard]] QSize sizeHint() const override;
    /// Shows a row in the middle and makes it the current one, selected.
    void goTo(int row);
    /// Calls it for Space. Moving from the search field then brings the keyboard to the list.
    void setToggle(std::function<void()> toggle) { toggle_ = std::move(toggle); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void spacePressed(Qt::KeyboardModifiers modifiers);
    void fitColumns(const VariableModel& model);
    QLineEdit& search_;
    int width_ = 0;  // that all columns want
    std::function<void()> toggle_;
};

}  // namespace hx::qt
