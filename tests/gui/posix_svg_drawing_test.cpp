// SPDX-License-Identifier: MIT
#include <QDirIterator>
#include <QPainter>
#include <gtest/gtest.h>

#include "adapters/qt/svg_drawing.h"
#include "adapters/qt/svg_painter.h"
#include "addin/image_list.h"
#include "editor/pictures.h"

namespace hx::gui {
namespace {

// Of 255. Qt's reader cuts the radius of a rectangle's corners to whole hundredths of its sides, so their edges differ.
constexpr int closeEnough = 2, closeEnoughAtCorners = 24;

QImage blank(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage drawnByQt(const QByteArray& svg, int size) {
    QImage image = blank(size);
    QPainter painter(&image);
    EXPECT_TRUE(qt::paintSvg(svg, painter));
    return image;
}

QImage drawnByUs(const QByteArray& svg, int size) {
    QImage image = blank(size);
    QPainter painter(&image);
    qt::SvgDrawing(svg).paint(painter, image.rect());
    return image;
}

/// The largest difference of a colour in any pixel.
int difference(const QImage& a, const QImage& b) {
    int largest = 0;
    for (int i = 0; i < a.sizeInBytes(); ++i)
        largest = std::max(largest, std::abs(a.constBits()[i] - b.constBits()[i]));
    return largest;
}

void expectTheSame(const QByteArray& svg) {
    const int most = svg.contains(" rx=") ? closeEnoughAtCorners : closeEnough;
    for (const int size : {16, 20, 48}) {
        EXPECT_LE(difference(drawnByQt(svg, size), drawnByUs(svg, size)), most) << svg.constData() << size;
    }
}

// The drawing that Windows has, beside Qt's own, which only other systems have.
TEST(SvgDrawing, IsWhatQtDrawsOfThePictures) {
    for (QDirIterator files(":/pictures", QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        expectTheSame(file.readAll());
    }
}

TEST(SvgDrawing, IsWhatQtDrawsOfTheEditorsPictures) {
    namespace pictures = editor::pictures;
    for (const forms::Picture& each : {pictures::create(), pictures::edit(), pictures::remove(), pictures::refresh(),
                                       pictures::choose(), *addin::FImageList().find("icoRcpRecipe")}) {
        expectTheSame(QByteArray::fromStdString(each.svg));
    }
}

TEST(SvgDrawing, IsWhatQtDrawsOfAPictureThatIsNoSquare) {
    expectTheSame(
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 2"><rect width="8" height="2" fill="#00f"/></svg>)");
}

TEST(SvgDrawing, IsWhatQtDrawsOfArcsEitherWayRound) {
    for (const char* flags : {"0 0", "0 1", "1 0", "1 1"}) {
        const QString svg = QStringLiteral(
            "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'><path d='M5 6A4 3 0 %1 9 9' stroke='#f00' "
            "fill='none'/>"
            "<path d='m8 8a1 1 0 %1 6 2z'/></svg>");
        expectTheSame(svg.arg(QLatin1StringView(flags)).toUtf8());
    }
}

}  // namespace
}  // namespace hx::gui
