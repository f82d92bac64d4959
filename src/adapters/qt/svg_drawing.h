// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QByteArray>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <vector>

class QPainter;

namespace hx::qt {

/// An SVG of the kind that icons are, for systems without Qt's own reader: paths, circles, rectangles, groups and
/// pictures inside, in plain colours. What else there is, is left out.
class SvgDrawing {
  public:
    explicit SvgDrawing(const QByteArray& svg);
    /// Whether it is SVG at all.
    [[nodiscard]] bool isValid() const { return !box_.isEmpty(); }
    /// As large as fits into the place, in its middle.
    void paint(QPainter& painter, const QRectF& place) const;

    struct Shape {
        QPainterPath path;
        QBrush fill;
        QPen stroke;
        QImage image;  ///< instead, in the path's rectangle
    };

  private:
    QRectF box_;
    std::vector<Shape> shapes_;
};

}  // namespace hx::qt
