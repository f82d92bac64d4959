// SPDX-License-Identifier: MIT
#include "adapters/qt/svg_drawing.h"

#include <QColor>
#include <QPainter>
#include <QXmlStreamReader>
#include <algorithm>

#include "adapters/qt/svg_path.h"

namespace hx::qt {

namespace {

/// How shapes look, as the elements around them say.
struct Look {
    QBrush fill{Qt::black};
    QPen stroke{Qt::NoBrush, 1, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin};
};

double number(const QXmlStreamAttributes& attributes, const char* name) {
    return attributes.value(QLatin1StringView(name)).toDouble();
}

QRectF rectangle(const QXmlStreamAttributes& attributes) {
    return {number(attributes, "x"), number(attributes, "y"), number(attributes, "width"),
            number(attributes, "height")};
}

QBrush brushOf(QStringView colour) { return colour == u"none" ? QBrush(Qt::NoBrush) : QBrush(QColor(colour)); }

Look lookOf(const QXmlStreamAttributes& attributes, Look look) {
    for (const QXmlStreamAttribute& each : attributes) {
        const QStringView name = each.name(), value = each.value();
        if (name == u"fill") look.fill = brushOf(value);
        else if (name == u"stroke") look.stroke.setBrush(brushOf(value));
        else if (name == u"stroke-width") look.stroke.setWidthF(value.toDouble());
        else if (name == u"stroke-linecap")
            look.stroke.setCapStyle(value == u"round"    ? Qt::RoundCap
                                    : value == u"square" ? Qt::SquareCap
                                                         : Qt::FlatCap);
        else if (name == u"stroke-linejoin")
            look.stroke.setJoinStyle(value == u"round"   ? Qt::RoundJoin
                                     : value == u"bevel" ? Qt::BevelJoin
                                                         : Qt::SvgMiterJoin);
    }
    return look;
}

QRectF boxOf(const QXmlStreamAttributes& attributes) {
    const auto numbers = attributes.value(QStringLiteral("viewBox")).split(u' ', Qt::SkipEmptyParts);
    if (numbers.size() != 4) return rectangle(attributes);
    return {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(), numbers[3].toDouble()};
}

/// What "data:image/png;base64," and the like hold.
QImage imageOf(QStringView reference) {
    return QImage::fromData(QByteArray::fromBase64(reference.mid(reference.indexOf(u',') + 1).toLatin1()));
}

SvgDrawing::Shape shapeOf(QStringView element, const QXmlStreamAttributes& attributes, const Look& look) {
    SvgDrawing::Shape shape{{}, look.fill, look.stroke, {}};
    if (element == u"path") {
        shape.path = svgPath(attributes.value(QStringLiteral("d")).toString());
    } else if (element == u"circle") {
        const double radius = number(attributes, "r");
        shape.path.addEllipse(QPointF(number(attributes, "cx"), number(attributes, "cy")), radius, radius);
    } else if (element == u"rect") {
        shape.path.addRoundedRect(rectangle(attributes), number(attributes, "rx"), number(attributes, "rx"));
    } else if (element == u"image") {
        shape.path.addRect(rectangle(attributes));
        shape.image = imageOf(attributes.value(QStringLiteral("http://www.w3.org/1999/xlink"), QStringLiteral("href")));
    }
    return shape;
}

}  // namespace

SvgDrawing::SvgDrawing(const QByteArray& svg) {
    QXmlStreamReader reader(svg);
    std::vector<Look> looks{Look()};
    QRectF box;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement) looks.pop_back();
        if (token != QXmlStreamReader::StartElement) continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (looks.size() == 1 && reader.name() != u"svg") return;
        if (looks.size() == 1) box = boxOf(attributes);
        looks.push_back(lookOf(attributes, looks.back()));
        if (Shape shape = shapeOf(reader.name(), attributes, looks.back()); !shape.path.isEmpty())
            shapes_.push_back(std::move(shape));
    }
    if (!reader.hasError()) box_ = box;
}

void SvgDrawing::paint(QPainter& painter, const QRectF& place) const {
    const double scale = std::min(place.width() / box_.width(), place.height() / box_.height());
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(place.center());
    painter.scale(scale, scale);
    painter.translate(-box_.center());
    for (const Shape& shape : shapes_) {
        if (!shape.image.isNull()) {
            painter.drawImage(shape.path.boundingRect(), shape.image);
            continue;
        }
        painter.fillPath(shape.path, shape.fill);
        if (shape.stroke.brush() != Qt::NoBrush) painter.strokePath(shape.path, shape.stroke);
    }
    painter.restore();
}

}  // namespace hx::qt
