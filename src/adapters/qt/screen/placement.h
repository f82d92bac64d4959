// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QWidget>

namespace hx::qt {

/// The place nearest to its own at which a window lies in `room`; one that is too large shows its upper left part.
[[nodiscard]] QPoint placeInside(const QRect& window, const QRect& room);

/// The window's own place while the user can get hold of its title bar there, else the nearest one inside `room`.
[[nodiscard]] QPoint reachablePlace(const QRect& window, int titleHeight, const QRect& room);

/// Puts a dialog over the middle of `owner`, or of the screen when there is none; never beyond the screen.
void placeOver(QWidget& dialog, const QWidget* owner);

}  // namespace hx::qt
