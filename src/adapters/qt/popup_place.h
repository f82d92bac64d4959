// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QPoint>
#include <optional>

#include "automation/restore.h"

namespace hx::qt {

/// Where the next pop-up menu opens: at the mouse, or where the user asked for it by keyboard.
class PopUpPlace {
  public:
    [[nodiscard]] QPoint point() const { return keyboard_.value_or(QCursor::pos()); }

    /// The place is `point` while it lives.
    [[nodiscard]] automation::Restore<std::optional<QPoint>> atKeyboard(const QPoint& point) {
        return {keyboard_, point};
    }

  private:
    std::optional<QPoint> keyboard_;
};

}  // namespace hx::qt
