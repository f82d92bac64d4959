// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QString>

namespace hx::qt {

/// The path that an attribute "d" of SVG describes: moves, lines, cubic curves, arcs of ellipses that are not turned.
/// It ends before the first command of another kind.
[[nodiscard]] QPainterPath svgPath(const QString& text);

}  // namespace hx::qt
