// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QPainter;

namespace hx::qt {

/// Draws it as large as fits into what the painter paints on; false for text that is no SVG. By Qt's own reader where
/// it is installed, by SvgDrawing on Windows.
[[nodiscard]] bool paintSvg(const QByteArray& svg, QPainter& painter);

}  // namespace hx::qt
