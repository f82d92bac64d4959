// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/qt_clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <memory>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

const QString svgType = QStringLiteral("image/svg+xml");
constexpr int imageSize = 64;

std::string svgAround(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const QString text = QStringLiteral(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
        "viewBox=\"0 0 %1 %2\"><image width=\"%1\" height=\"%2\" "
        "xlink:href=\"data:image/png;base64,%3\"/></svg>");
    return fromQt(text.arg(image.width()).arg(image.height()).arg(QString::fromLatin1(png.toBase64())));
}

}  // namespace

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::setPicture(const forms::Picture& picture) {
    const QByteArray svg = QByteArray::fromStdString(picture.svg);
    auto data = std::make_unique<QMimeData>();
    data->setData(svgType, svg);
    if (const QImage image = svgImage(svg, imageSize); !image.isNull()) data->setImageData(image);
    QGuiApplication::clipboard()->setMimeData(data.release());  // the clipboard owns it
}

forms::Picture QtClipboard::picture() const {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return {};
    if (data->hasFormat(svgType)) return {data->data(svgType).toStdString()};
    if (const auto image = qvariant_cast<QImage>(data->imageData()); !image.isNull()) return {svgAround(image)};
    return {};
}

}  // namespace hx::qt
