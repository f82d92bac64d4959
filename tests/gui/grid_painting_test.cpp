// SPDX-License-Identifier: MIT
#include <QFontMetricsF>
#include <QHeaderView>
#include <QImage>
#include <QScrollBar>

#include "adapters/qt/grid/text_widths.h"
#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

class GridPainting : public GridFixture {
  protected:
    /// What the table draws, on pixels of a color that it never uses.
    [[nodiscard]] QImage picture() {
        handleEvents();
        QImage image(table().viewport()->size(), QImage::Format_RGB32);
        image.fill(unused);
        table().viewport()->render(&image, {}, {}, {});
        return image;
    }
    [[nodiscard]] QColor role(QPalette::ColorRole role) { return table().palette().color(QPalette::Active, role); }
    /// The columns of pixels between the edges of a cell that are not of its background, from its left edge.
    [[nodiscard]] std::pair<int, int> ink(const QImage& image, const QRect& cell) {
        const QRgb background = image.pixel(cell.left() + 1, cell.center().y());
        int first = -1, last = -1;
        for (int x = 2; x < cell.width() - 2; ++x) {
            for (int y = 3; y < cell.height() - 3; ++y) {
                if (image.pixel(cell.left() + x, cell.top() + y) == background) continue;
                if (first < 0) first = x;
                last = x;
            }
        }
        return {first, last};
    }
    void setText(int key, const char* text) {
        const std::vector<ado::ColumnValue> value = {{2, automation::Variant(text)}};
        form->table().update(key, value);
        grid().refetch();
    }
    static constexpr QRgb unused = qRgb(255, 0, 255);
};

TEST_F(GridPainting, EveryPixelIsDrawn) {
    for (const int rows : {0, 3, 200}) {
        form->fill(rows);
        show(0);
        for (const bool wide : {false, true}) {
            table().horizontalHeader()->resizeSection(numberOf("ID"), wide ? 900 : 30);
            const QImage image = picture();
            int left = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) left += image.pixel(x, y) == unused ? 1 : 0;
            }
            EXPECT_EQ(left, 0) << rows;
        }
    }
}

TEST_F(GridPainting, APartIsDrawnAsInTheWhole) {
    show(200);
    table().horizontalScrollBar()->setValue(7);
    const QImage whole = picture();
    const QRect part(61, 40, 170, 90);
    QImage image(part.size(), QImage::Format_RGB32);
    table().viewport()->render(&image, {}, part, {});
    EXPECT_EQ(image, whole.copy(part));
}

TEST_F(GridPainting, RowsAlternateAndSelectedOnesAreMarked) {
    show(5);
    clickSelector(3);
    const QImage image = picture();
    const auto background = [&](int row) { return image.pixelColor(cell(row, "VarRecipe").topLeft() + QPoint(1, 1)); };
    EXPECT_EQ(background(0), role(QPalette::Base));
    EXPECT_EQ(background(1), role(QPalette::AlternateBase));
    EXPECT_EQ(background(2), role(QPalette::Base));
    EXPECT_NE(background(4), background(3));
    EXPECT_EQ(image.pixelColor(cell(3, "ID").topLeft() + QPoint(1, 1)), role(QPalette::Highlight));
}

TEST_F(GridPainting, TextsStandAtTheLeftAndNumbersAtTheRight) {
    show(5);
    const QImage image = picture();
    const QRect text = cell(2, "VarRecipe"), number = cell(2, "ID");
    EXPECT_LT(ink(image, text).first, 8);
    EXPECT_LT(ink(image, text).second, text.width() / 2);
    EXPECT_GT(ink(image, number).first, number.width() / 2);
    EXPECT_GT(ink(image, number).second, number.width() - 10);
}

TEST_F(GridPainting, ATextThatIsTooLongEndsBeforeItsCell) {
    show(5);
    grid().column(automation::Variant("VarRecipe")).setButton(false);
    for (const char* text : {"a variable name that is much too long for a column of this width",
                             "ein viel zu langer Name für diese Spalte, mit einem Zeichen von weither: Ω"}) {
        setText(3, text);
        grid().column(automation::Variant("VarRecipe")).setWidth(1500);
        const QRect rect = cell(2, "VarRecipe");
        const auto [first, last] = ink(picture(), rect);
        EXPECT_LT(first, 8) << text;
        EXPECT_GT(last, rect.width() / 2) << text;
        EXPECT_LE(last, rect.width() - 4) << text;
    }
}

TEST_F(GridPainting, TheButtonIsDrawnInTheCurrentRowAndUnderTheMouse) {
    show(5);
    click(1, "ID");
    const auto buttonAt = [this](const QImage& image, int row) {
        const QRect rect = cell(row, "VarRecipe");
        const auto [first, last] = ink(image, QRect(rect.right() - 24, rect.top(), 25, rect.height()));
        return first >= 0;
    };
    EXPECT_TRUE(buttonAt(picture(), 1));
    EXPECT_FALSE(buttonAt(picture(), 3));
    QTest::mouseMove(table().viewport(), cell(3, "ID").center());
    EXPECT_TRUE(waitUntil([&] { return buttonAt(picture(), 3); }));
    EXPECT_TRUE(buttonAt(picture(), 1));
}

TEST(TextWidths, AreThoseOfTheFontForWesternLetters) {
    const QFont font("Arial", 8);
    qt::TextWidths widths;
    widths.use(font);
    const QFontMetricsF metrics(font);
    for (const char* text : {"", "i", "Mischer.Zucker", "Süßstoff_17 [l/h]"}) {
        const QString shown = QString::fromUtf8(text);
        const auto width = widths.of(shown);
        ASSERT_TRUE(width.has_value()) << text;
        EXPECT_NEAR(*width, metrics.horizontalAdvance(shown), 2.0) << text;
    }
    QFont bigger = font;
    bigger.setPointSize(24);
    const int small = *widths.of("Mischer");
    widths.use(bigger);
    EXPECT_GT(*widths.of("Mischer"), 2 * small);
}

TEST(TextWidths, AreNotToldForTextsThatHaveToBeLaidOut) {
    qt::TextWidths widths;
    widths.use(QFont("Arial", 8));
    for (const char* text : {"a\tb", "a\nb", "\u03a9", "a\u00adb", "\u05d0"}) {
        EXPECT_FALSE(widths.of(QString::fromUtf8(text)).has_value()) << text;
    }
}

}  // namespace
}  // namespace hx::gui
