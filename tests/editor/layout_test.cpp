// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

constexpr double menuHeight = 300, toolBarHeight = 400, statusHeight = 330;

struct Layout : EditorWindow {
    Layout() {
        open();
        window->tbrfunc->setHeight(toolBarHeight);
        window->sb->setHeight(statusHeight);
    }
    void area(double width, double height) {
        window->clientAreaChanged(width, height);
        window->abr->mainBand().heightReported(menuHeight);
        window->abr->clientAreaReported(width, height - menuHeight);
    }
    static void expectBounds(const forms::Control& control, double left, double top, double width, double height) {
        EXPECT_EQ(control.left(), left) << control.name();
        EXPECT_EQ(control.top(), top) << control.name();
        EXPECT_EQ(control.width(), width) << control.name();
        EXPECT_EQ(control.height(), height) << control.name();
    }
};

TEST_F(Layout, FillsTheAreaThatTheMenuLeavesFree) {
    area(9000, 6300);
    expectBounds(*window->tbrfunc, 0, 300, 9000, 400);
    expectBounds(*window->sb, 0, 300 + 6000 - 330, 9000, 330);
    expectBounds(grid(), 0, 700, 9000, 5600);
}

TEST_F(Layout, GivesTheHeightOfAHiddenStatusLineToTheGrid) {
    window->sb->setVisible(false);
    area(9000, 6300);
    expectBounds(grid(), 0, 700, 9000, 5930);
    expectBounds(*window->sb, 0, 5970, 9000, 330);
}

TEST_F(Layout, GivesNoHeightBelowZero) {
    area(9000, 500);
    expectBounds(grid(), 0, 700, 9000, 0);
}

TEST_F(Layout, LeavesTheGridOfAMinimisedWindowAsItIs) {
    area(9000, 6300);
    window->setWindowState(forms::WindowState::minimised);
    area(2000, 1000);
    expectBounds(grid(), 0, 700, 9000, 5600);
    expectBounds(*window->tbrfunc, 0, 300, 2000, 400);
    expectBounds(*window->sb, 0, 300 + 700 - 330, 2000, 330);
}

TEST_F(Layout, MovesTheGridInOneStep) {
    Texts changes;
    const auto watch = grid().changed.subscribe([&](std::string_view property) { changes.emplace_back(property); });
    area(9000, 6300);
    EXPECT_EQ(changes, (Texts{"Bounds"}));
}

TEST_F(Layout, TakesTheWidthOfTheWindowsInsideForTheGrid) {
    window->clientAreaChanged(8000, 6300);
    window->abr->clientAreaReported(9000, 6000);
    EXPECT_EQ(grid().width(), 8000);
    EXPECT_EQ(window->tbrfunc->width(), 9000);
}

TEST_F(Layout, PutsTheSplitBarBesideTheFirstSplit) {
    grid().split(0).setSize(2000);
    area(9000, 6300);
    expectBounds(*window->pctrcpTabSplit, 2030, 700, 60, 5600);
    area(1000, 6300);
    EXPECT_EQ(window->pctrcpTabSplit->left(), 970);
    EXPECT_EQ(grid().split(0).size(), 2000) << "the split comes back when the window grows";
}

TEST_F(Layout, RunsAgainWhenTheToolBarGetsAnotherHeight) {
    area(9000, 6300);
    window->tbrfunc->setHeight(600);
    expectBounds(grid(), 0, 900, 9000, 5400);
}

TEST_F(Layout, LeavesTheGridWhereItIsWhenTheToolBarChangesOtherwise) {
    area(9000, 6300);
    grid().move(0, 0, 10, 10);
    window->tbrfunc->setVisible(false);
    expectBounds(grid(), 0, 0, 10, 10);
}

TEST_F(Layout, RunsWhenItIsCalledAfterTheStatusLineWasHidden) {
    area(9000, 6300);
    window->sb->setVisible(false);
    EXPECT_EQ(grid().height(), 5600);
    window->abr_Resize();
    EXPECT_EQ(grid().height(), 5930);
}

}  // namespace
}  // namespace hx::editor
