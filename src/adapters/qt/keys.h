// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <cstdint>

#include "adapters/qt/units.h"
#include "forms/key_strokes.h"

namespace hx::qt {

/// The Windows virtual key code of a key; 0 for keys that have none here.
[[nodiscard]] std::int16_t virtualKey(const QKeyEvent& event);
[[nodiscard]] std::int16_t shiftState(Qt::KeyboardModifiers modifiers);
[[nodiscard]] std::int16_t buttonNumber(Qt::MouseButton button);
[[nodiscard]] std::int16_t buttonNumber(Qt::MouseButtons buttons);

/// The character that a key types, 0 for none.
[[nodiscard]] std::int32_t typedCharacter(const QKeyEvent& event);

/// A mouse event at a point in pixels. A move names all pressed buttons, a press or release the one.
[[nodiscard]] forms::MouseEvent mouseEvent(const QMouseEvent& event, const QPointF& point, const Units& units);

/// A key stroke as the keyboard would report it.
[[nodiscard]] QKeyEvent keyEvent(QEvent::Type type, const forms::KeyStroke& stroke);

}  // namespace hx::qt
