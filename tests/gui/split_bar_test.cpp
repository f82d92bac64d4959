// SPDX-License-Identifier: MIT
#include <QMouseEvent>
#include <QTest>

#include "gui/studio_fixture.h"

namespace hx::gui {
namespace {

/// The bar between the two tables of the editor, dragged with the mouse.
class SplitBarTest : public StudioTest {
  protected:
    void SetUp() override {
        start();
        open(makeProject());
        click("Rezepte");
        click("Rezepte/Limonade");
    }
    [[nodiscard]] QWidget& bar() { return find<QWidget>(window(), "pctrcpTabSplit"); }
    [[nodiscard]] QWidget& left() { return find<QWidget>(window(), "tdbRM.Splits(0)"); }
    [[nodiscard]] QWidget& box() { return *grid().parentWidget(); }
    [[nodiscard]] QRect inWindow(QWidget& widget) { return {widget.mapTo(&window(), QPoint()), widget.size()}; }
    void drag(int distance) {
        const QPoint at = bar().rect().center();
        QTest::mousePress(&bar(), Qt::LeftButton, {}, at);
        const QPoint to = at + QPoint(distance, 0);
        QMouseEvent move(QEvent::MouseMove, QPointF(to), QPointF(bar().mapToGlobal(to)), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&bar(), &move);
        QTest::mouseRelease(&bar(), Qt::LeftButton, {}, at);
        handleEvents();
    }
    void expectKeyboardInView() {
        tree().setFocus();
        QTest::keyClick(&tree(), Qt::Key_F6);
        EXPECT_TRUE(grid().hasFocus());
        EXPECT_GE(grid().width(), box().width() / 4);
    }
};

TEST_F(SplitBarTest, CoversNeitherTable) {
    drag(box().width() / 2);
    ASSERT_TRUE(left().isVisible());
    EXPECT_FALSE(inWindow(bar()).intersects(inWindow(left())));
    EXPECT_FALSE(inWindow(bar()).intersects(inWindow(grid())));
    expectKeyboardInView();
}

TEST_F(SplitBarTest, IsCaughtAgainAtTheEnd) {
    const int width = bar().width();
    drag(10 * box().width());
    EXPECT_TRUE(inWindow(box()).contains(inWindow(bar())));
    EXPECT_EQ(bar().width(), width);
    EXPECT_FALSE(left().isVisible()) << "one table is left";
    EXPECT_FALSE(inWindow(bar()).intersects(inWindow(grid())));
    expectKeyboardInView();
    drag(-box().width() / 2);
    EXPECT_TRUE(left().isVisible());
    expectKeyboardInView();
    drag(-box().width());
    EXPECT_FALSE(left().isVisible());
    EXPECT_EQ(grid().width(), box().width());
}

TEST_F(SplitBarTest, TheTabulatorPassesOverATableThatIsTooNarrow) {
    drag(box().width() / 2);
    EXPECT_EQ(left().focusPolicy(), Qt::StrongFocus);
    drag(10 - left().width());
    ASSERT_TRUE(left().isVisible());
    EXPECT_EQ(left().focusPolicy(), Qt::ClickFocus);
}

}  // namespace
}  // namespace hx::gui
