// SPDX-License-Identifier: MIT
#include "adapters/qt/svg_icon.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <map>
#include <tuple>

namespace hx::qt {

namespace {

constexpr double disabledOpacity = 0.35;

class SvgIconEngine : public QIconEngine {
  public:
    explicit SvgIconEngine(QByteArray svg) : svg_(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * scale).toSize(), mode, state));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap& known = drawn_[{size.width(), size.height(), mode == QIcon::Disabled}];
        if (known.isNull()) known = draw(size, mode == QIcon::Disabled ? disabledOpacity : 1);
        return known;
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        return pixmap(size, mode, state);
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(svg_); }
    bool isNull() override { return false; }

  private:
    [[nodiscard]] QPixmap draw(const QSize& size, double opacity) const {
        QSvgRenderer renderer(svg_);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        painter.setOpacity(opacity);
        renderer.render(&painter);
        return result;
    }
    QByteArray svg_;
    std::map<std::tuple<int, int, bool>, QPixmap> drawn_;  // width, height, faded
};

}  // namespace

QIcon svgIcon(const QByteArray& svg) {
    if (svg.isEmpty() || !QSvgRenderer(svg).isValid()) return {};
    return QIcon(new SvgIconEngine(svg));
}

QIcon namedIcon(const char* name) {
    QFile file(QStringLiteral(":/pictures/") + QLatin1StringView(name) + QStringLiteral(".svg"));
    return file.open(QIODevice::ReadOnly) ? svgIcon(file.readAll()) : QIcon();
}

QIcon svgIcon(const forms::Picture& picture) { return svgIcon(QByteArray::fromStdString(picture.svg)); }

QImage svgImage(const QByteArray& svg, int size) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) return {};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

}  // namespace hx::qt
