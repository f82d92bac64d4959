// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

namespace button = forms::button;

struct SplitBar : EditorWindow {
    SplitBar() {
        open();
        grid().move(100, 800, 6000, 3000);
        bar().setLeft(130);
    }
    [[nodiscard]] forms::PictureBox& bar() const { return *window->pctrcpTabSplit; }
    void press(std::int16_t which = button::left) { bar().mouseDown({which, 0, 0, 0}); }
    void move(double x, std::int16_t which = button::left) { bar().mouseMove({which, 0, x, 0}); }
    void release(std::int16_t which = button::left) { bar().mouseUp({which, 0, 0, 0}); }
};

TEST_F(SplitBar, IsPassedOverByTheTabulatorKey) { EXPECT_FALSE(bar().tabStop()); }

TEST_F(SplitBar, FollowsTheMouseWithoutTouchingTheGrid) {
    press();
    move(500);
    EXPECT_EQ(bar().left(), 630);
    move(-100);
    EXPECT_EQ(bar().left(), 530);
    EXPECT_EQ(grid().split(0).size(), 0);
}

TEST_F(SplitBar, SetsTheWidthOfTheFirstSplitWhereItIsReleased) {
    press();
    move(1500);
    release();
    EXPECT_EQ(grid().split(0).size(), 1500);
    EXPECT_EQ(bar().left(), 1630);
    EXPECT_EQ(grid().split(1).size(), 0);
}

TEST_F(SplitBar, PastTheRightEdgeLeavesTheSplitSixtyTwipsNarrowerThanTheGrid) {
    press();
    move(20000);
    release();
    EXPECT_EQ(grid().split(0).size(), 5940);
    EXPECT_EQ(bar().left(), 100 + 5940 + 30);
}

TEST_F(SplitBar, LeftOfTheGridGivesWidthZeroAndStandsThirtyTwipsInside) {
    press();
    move(1000);
    release();
    press();
    move(-9000);
    release();
    EXPECT_EQ(grid().split(0).size(), 0);
    EXPECT_EQ(bar().left(), 130);
}

TEST_F(SplitBar, OnAGridNarrowerThanItsEdgeGivesWidthZero) {
    grid().setWidth(40);
    press();
    move(500);
    release();
    EXPECT_EQ(grid().split(0).size(), 0);
    EXPECT_EQ(bar().left(), 130);
}

TEST_F(SplitBar, IgnoresOtherButtons) {
    press(button::right);
    move(500);
    EXPECT_EQ(bar().left(), 130);
    press();
    move(500, button::right);
    EXPECT_EQ(bar().left(), 130);
    move(500);
    release(button::right);
    EXPECT_EQ(grid().split(0).size(), 0);
    release();
    EXPECT_EQ(grid().split(0).size(), 500);
}

TEST_F(SplitBar, IgnoresMovesAndReleasesWhileNotSplitting) {
    move(500);
    release();
    EXPECT_EQ(bar().left(), 130);
    press();
    move(500);
    release();
    move(500);
    EXPECT_EQ(bar().left(), 630);
    bar().setLeft(900);
    release();
    EXPECT_EQ(grid().split(0).size(), 500);
}

}  // namespace
}  // namespace hx::editor
