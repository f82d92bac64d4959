// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace hx::qt {

/// A label that shows text as it is: QLabel takes what looks like HTML for that, and names of the user's may look so.
class PlainLabel : public QLabel {
  public:
    explicit PlainLabel(QWidget* parent = nullptr) : QLabel(parent) { setTextFormat(Qt::PlainText); }
};

}  // namespace hx::qt
