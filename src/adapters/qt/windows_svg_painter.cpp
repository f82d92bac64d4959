// SPDX-License-Identifier: MIT
#include <QPainter>

#include "adapters/qt/svg_drawing.h"
#include "adapters/qt/svg_painter.h"

namespace hx::qt {

bool paintSvg(const QByteArray& svg, QPainter& painter) {
    const SvgDrawing drawing(svg);
    if (drawing.isValid()) drawing.paint(painter, painter.viewport());
    return drawing.isValid();
}

}  // namespace hx::qt
