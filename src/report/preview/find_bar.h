// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <functional>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"

namespace hx::report {

/// The line above the pages in which a text is looked for.
class FindBar : public QWidget {
  public:
    /// Goes to the next place of a text, or to the one before; false when there is none.
    using Find = std::function<bool(const QString& text, bool backwards)>;
    FindBar(Find find, const qt::Wording& wording, QWidget* parent);

    /// Shows it, with the keyboard in its field.
    void open();
    void go(bool backwards);
    /// Called when it has been closed.
    std::function<void()> closed = [] {};

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void shut();

    Find find_;
    const qt::Wording& wording_;
    QHBoxLayout row_{this};
    QLineEdit field_;
    QToolButton previous_, next_, close_;
    qt::PlainLabel state_;
};

}  // namespace hx::report
