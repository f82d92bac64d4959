// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScrollArea>
#include <algorithm>
#include <array>

#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

/// The desktop turns dark while the studio runs.
class StudioPalette : public StudioTest {
  protected:
    ~StudioPalette() override { QApplication::setPalette(before_); }
    static void turnDark() {
        QPalette dark;
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::AlternateBase})
            dark.setColor(role, QColor(40, 40, 40));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            dark.setColor(role, Qt::white);
        dark.setColor(QPalette::Mid, QColor(30, 30, 30));
        QApplication::setPalette(dark);
        handleEvents();
    }
    /// The most frequent brightness of what a widget shows, 0 to 255.
    static int brightness(QWidget& widget) {
        const QImage image = widget.grab().toImage();
        std::array<int, 256> counts{};
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) ++counts[static_cast<std::size_t>(qGray(image.pixel(x, y)))];
        return static_cast<int>(std::ranges::max_element(counts) - counts.begin());
    }

  private:
    QPalette before_ = QApplication::palette();
};

TEST_F(StudioPalette, ExplorerGridAndDocumentsFollowTheDesktop) {
    startAtMembers();
    EXPECT_GT(brightness(tree()), 200);
    EXPECT_GT(brightness(grid()), 200);
    turnDark();
    EXPECT_LT(brightness(tree()), 60);
    EXPECT_LT(brightness(grid()), 60);
    editorWindow()->close();
    handleEvents();
    EXPECT_LT(brightness(documents()), 60);
    window().closeProject();
    handleEvents();
    EXPECT_LT(brightness(find<QScrollArea>(window(), "startPage")), 60);
}

}  // namespace
}  // namespace hx::gui
