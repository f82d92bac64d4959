// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QPushButton>
#include <QStatusBar>

#include "adapters/qt/controls/plain_label.h"

namespace hx::studio {

/// Says in the status line what a step has done beside what was meant, with a button that takes it back.
class StepNotice : public QWidget {
  public:
    /// Both are lent; the button triggers `undo`.
    StepNotice(QStatusBar& bar, QAction& undo);

    void tell(const QString& text);
    void retranslate(const QString& undo) { undo_.setText(undo); }

  private:
    QStatusBar& bar_;
    qt::PlainLabel icon_, text_;
    QPushButton undo_;
};

}  // namespace hx::studio
