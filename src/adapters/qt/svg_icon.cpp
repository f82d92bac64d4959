// SPDX-License-Identifier: MIT
#include "adapters/qt/svg_icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <map>
#include <tuple>

#include "adapters/qt/svg_painter.h"

namespace hx::qt {

namespace {

constexpr double disabledOpacity = 0.35;

/// A null image for what is no SVG.
QImage draw(const QByteArray& svg, QSize size, double opacity = 1) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(opacity);
    return paintSvg(svg, painter) ? image : QImage();
}

class SvgIconEngine : public QIconEngine {
  public:
    explicit SvgIconEngine(QByteArray svg) : svg_(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap& known = drawn_[{size.width(), size.height(), mode == QIcon::Disabled}];
        if (known.isNull()) known = QPixmap::fromImage(draw(svg_, size, mode == QIcon::Disabled ? disabledOpacity : 1));
        return known;
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        return pixmap(size, mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(svg_); }
    bool isNull() override { return false; }

  private:
    QByteArray svg_;
    std::map<std::tuple<int, int, bool>, QPixmap> drawn_;  // width, height, faded
};

}  // namespace

QIcon svgIcon(const QByteArray& svg) {
    if (svg.isEmpty() || draw(svg, {1, 1}).isNull()) return {};
    return QIcon(new SvgIconEngine(svg));
}

QIcon namedIcon(const char* name) {
    QFile file(QStringLiteral(":/pictures/") + QLatin1StringView(name) + QStringLiteral(".svg"));
    return file.open(QIODevice::ReadOnly) ? svgIcon(file.readAll()) : QIcon();
}

QIcon svgIcon(const forms::Picture& picture) { return svgIcon(QByteArray::fromStdString(picture.svg)); }

QImage svgImage(const QByteArray& svg, int size) { return draw(svg, {size, size}); }

}  // namespace hx::qt
