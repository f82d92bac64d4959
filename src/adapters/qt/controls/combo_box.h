// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace hx::qt {

/// A list that shows 20 entries and a scroll bar at most when it is open, and goes to the entry that is typed, blanks
/// included. F4 and Alt+Down open it.
class ComboBox : public QComboBox {
  public:
    explicit ComboBox(QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace hx::qt
