// SPDX-License-Identifier: MIT
#include <QGuiApplication>

#include "adapters/qt/fonts.h"
#include "gui/desktop.h"

namespace hx::gui {
namespace {

/// With a desktop whose font is larger than that of the settings.
class ShownFont : public Desktop {
  protected:
    ShownFont() { QApplication::setFont(QFont(before_.family(), 12)); }
    ~ShownFont() override { QApplication::setFont(before_); }
    static forms::Font::Values font(double size, std::int16_t weight = 400, const std::string& name = "Arial") {
        forms::Font::Values values;
        values.size = size;
        values.weight = weight;
        values.name = name;
        return values;
    }

  private:
    QFont before_ = QApplication::font();
};

TEST_F(ShownFont, TheOneThatNobodyHasChosenHasTheSizeOfTheDesktops) {
    EXPECT_EQ(qt::shownFont(font(8.25)).pointSizeF(), 12);
    EXPECT_EQ(qt::shownFont(font(8)).pointSizeF(), 12);
}

TEST_F(ShownFont, AChosenOneStaysAsItIs) {
    EXPECT_EQ(qt::shownFont(font(9)).pointSizeF(), 9);
    EXPECT_EQ(qt::shownFont(font(8, 700)).pointSizeF(), 8);
    EXPECT_EQ(qt::shownFont(font(8, 400, "Courier")).pointSizeF(), 8);
    EXPECT_EQ(qt::shownFont(font(20)).pointSizeF(), 20);
}

TEST_F(ShownFont, IsNeverSmallerThanTheSettings) {
    QApplication::setFont(QFont(QApplication::font().family(), 6));
    EXPECT_EQ(qt::shownFont(font(8)).pointSizeF(), 8);
}

}  // namespace
}  // namespace hx::gui
