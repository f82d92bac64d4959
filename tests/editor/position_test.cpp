// SPDX-License-Identifier: MIT
#include "editor_window.h"
#include "host/window_offset.h"

namespace hx::editor {
namespace {

struct Position : EditorWindow {
    void openNormal(double left, double top) {
        open();
        window->setWindowState(forms::WindowState::normal);
        window->setLeft(left);
        window->setTop(top);
    }
};

TEST_F(Position, BeforeTheWindowExistsIsThatOfTheForm) {
    window->setLeft(450);
    window->setTop(150);
    EXPECT_EQ(window->PosLeft(), 450);
    EXPECT_EQ(window->PosTop(), 150);
}

TEST_F(Position, IsMeasuredFromTheStudiosWindow) {
    openNormal(450, 150);
    const auto inHost = host.windows.rect(window->handle());
    const auto area = host.windows.rect(host.explorer.hostWindow());
    EXPECT_EQ(window->PosLeft(), (inHost.left - area.left) * 15.0);
    EXPECT_EQ(window->PosTop(), (inHost.top - area.top) * 15.0);
    EXPECT_EQ(window->PosLeft(), 450);
    EXPECT_EQ(window->PosTop(), 150);
}

TEST_F(Position, IsThatOfTheWindowWhereverTheStudioHasPutIt) {
    openNormal(450, 150);
    const auto area = host.windows.rect(host.explorer.hostWindow());
    const auto frame =
        host.windows.add(host::window::Rect{area.left + 40, area.top + 20, area.left + 900, area.top + 700});
    host.windows.setParent(window->handle(), frame);
    EXPECT_EQ(window->PosLeft(), 450 + 40 * 15.0);
    EXPECT_EQ(window->PosTop(), 150 + 20 * 15.0);
}

TEST_F(Position, MovesTheWindowToWhereItIsSet) {
    openNormal(450, 150);
    window->setPosLeft(900);
    window->setPosTop(-30);
    EXPECT_EQ(window->PosLeft(), 900);
    EXPECT_EQ(window->PosTop(), -30);
    EXPECT_EQ(window->left(), 900);
    EXPECT_EQ(window->top(), -30);
}

TEST_F(Position, OfAMaximisedWindowIsWhereItWillLieAgain) {
    openNormal(450, 150);
    window->setWindowState(forms::WindowState::maximised);
    EXPECT_EQ(window->PosLeft(), 450);
    EXPECT_EQ(window->PosTop(), 150);
    for (int i = 0; i < 2; ++i) {
        window->setPosLeft(600);
        window->setPosTop(-37.5);
        EXPECT_EQ(window->PosLeft(), 600);
        EXPECT_EQ(window->PosTop(), -37.5);
    }
    window->setWindowState(forms::WindowState::normal);
    EXPECT_EQ(window->left(), 600);
    EXPECT_EQ(window->top(), -37.5);
}

TEST_F(Position, WithoutAnExplorerIsThatOfTheForm) {
    openNormal(450, 150);
    addIn.node = nullptr;
    EXPECT_EQ(window->PosLeft(), 450);
    EXPECT_EQ(window->PosTop(), 150);
}

TEST_F(Position, OfAWindowTakenOutOfTheStudioIsThatOfTheForm) {
    openNormal(450, 150);
    host.windows.setParent(window->handle(), -1);
    EXPECT_EQ(window->PosLeft(), 450);
    EXPECT_EQ(window->PosTop(), 150);
}

TEST_F(Position, IsReachedByName) {
    window->set("PosLeft", automation::Variant(600.0));
    EXPECT_EQ(window->get("posleft"), automation::Variant(600.0));
    EXPECT_EQ(window->left(), 600);
}

}  // namespace
}  // namespace hx::editor
