// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;
class QPoint;

namespace hx::qt {

/// What the pointer is told beyond what a window says itself: the key of a button, and the whole text of what is cut
/// off. An event filter for the application.
class ToolTips : public QObject {
  public:
    /// What is told at a place of a widget; empty when the window's own tool tip does.
    [[nodiscard]] static QString textAt(const QWidget& widget, const QPoint& place);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace hx::qt
