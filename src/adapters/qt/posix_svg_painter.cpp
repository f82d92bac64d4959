// SPDX-License-Identifier: MIT
#include <QPainter>
#include <QSvgRenderer>

#include "adapters/qt/svg_painter.h"

namespace hx::qt {

bool paintSvg(const QByteArray& svg, QPainter& painter) {
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    return renderer.isValid();
}

}  // namespace hx::qt
