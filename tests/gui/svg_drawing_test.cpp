// SPDX-License-Identifier: MIT
#include "adapters/qt/svg_drawing.h"

#include <QBuffer>
#include <QPainter>
#include <gtest/gtest.h>

namespace hx::gui {
namespace {

QImage drawn(const QByteArray& shapes) {
    const qt::SvgDrawing drawing(
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 8 8">)" +
        shapes + "</svg>");
    EXPECT_TRUE(drawing.isValid());
    QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.paint(painter, image.rect());
    return image;
}

TEST(SvgDrawing, IsOfNothingElse) {
    for (const char* text : {"", "text", "<html/>", "<svg viewBox='0 0 8 8'>", "<svg/>"}) {
        EXPECT_FALSE(qt::SvgDrawing(text).isValid()) << text;
    }
}

TEST(SvgDrawing, TakesColoursFromTheElementsAround) {
    const QImage image =
        drawn("<g fill='#00f'><rect width='4' height='8'/><rect x='4' width='4' height='8' fill='#f00'/></g>");
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(6, 6), QColor(Qt::red));
}

TEST(SvgDrawing, ShowsAPictureInside) {
    QImage red(2, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    red.save(&buffer, "PNG");
    const QImage image =
        drawn("<image width='4' height='8' xlink:href='data:image/png;base64," + png.toBase64() + "'/>");
    EXPECT_EQ(image.pixelColor(2, 4), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(6, 4).alpha(), 0);
}

TEST(SvgDrawing, LeavesOutWhatItDoesNotKnow) {
    const QImage image = drawn("<text>a</text><path d='M0 0h8v4h-8zQ1 1 2 2'/><circle r='0'/>");
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(1, 6).alpha(), 0);
}

}  // namespace
}  // namespace hx::gui
