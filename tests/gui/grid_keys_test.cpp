// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>

#include "forms/text_box.h"
#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

using GridKeys = GridFixture;

TEST_F(GridKeys, ShiftWithLeftOrRightMovesNowhereUntilItIsReleased) {
    show(3);
    click(1, "ParentID");
    const int column = numberOf("ParentID");
    grid().keyUpEvent.connect([this](forms::KeyEvent& key) {
        if (key.shift == forms::shift::shift && key.code == forms::key::right) grid().setCol(grid().col() + 1);
    });
    QTest::keyPress(&table(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid().col(), column);
    QTest::keyRelease(&table(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid().col(), column + 1);
    EXPECT_EQ(table().currentIndex().column(), column + 1);
    QTest::keyPress(&table(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(grid().col(), column + 1);
}

TEST_F(GridKeys, ArrowsWithoutShiftMoveToTheNextColumn) {
    show(3);
    click(1, "ParentID");
    press(Qt::Key_Right);
    EXPECT_EQ(grid().col(), numberOf("ParentID") + 1);
    press(Qt::Key_Left);
    EXPECT_EQ(grid().col(), numberOf("ParentID"));
}

TEST_F(GridKeys, AHeldKeyIsReportedAsReleasedOnce) {
    show(3);
    std::vector<std::string> reports;
    const auto note = [&](const char* what) {
        return [&reports, what](const forms::KeyEvent& key) {
            if (key.code == forms::key::f9) reports.emplace_back(what);
        };
    };
    grid().keyDownEvent.connect(note("down"));
    grid().keyUpEvent.connect(note("up"));
    const auto send = [this](QEvent::Type type, bool repeated) {
        QKeyEvent event(type, Qt::Key_F9, Qt::NoModifier, QString(), repeated);
        QApplication::sendEvent(&table(), &event);
    };
    send(QEvent::KeyPress, false);
    send(QEvent::KeyRelease, true);
    send(QEvent::KeyPress, true);
    send(QEvent::KeyRelease, false);
    EXPECT_EQ(reports, (std::vector<std::string>{"down", "down", "up"}));
}

TEST_F(GridKeys, AKeyThatTheGridClaimsIsNotTakenByAShortcutOfTheWindow) {
    show(3);
    click(1, "VarRecipe");
    int opened = 0, reported = 0;
    QAction open;
    open.setShortcut(QKeySequence::Open);
    QObject::connect(&open, &QAction::triggered, &open, [&] { ++opened; });
    windowOf(*form).addAction(&open);
    grid().keyDownEvent.connect([&](const forms::KeyEvent& key) { reported += key.code == forms::key::o ? 1 : 0; });
    press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(reported, 0);
    grid().claimKeys({{forms::key::o, forms::shift::ctrl}});
    press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(reported, 1);
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(reported, 2);
}

/// A grid between two fields, in the order of the keyboard.
class FormWithFields : public DemoForm {
  public:
    explicit FormWithFields(forms::Screen& screen) : DemoForm(screen) {
        const auto before = add<forms::TextBox>("before");
        const auto after = add<forms::TextBox>("after");
        before->setTabIndex(1);
        grid->setTabIndex(2);
        after->setTabIndex(3);
        for (const auto& field : {before, after}) field->move(0, 0, 600, 300);
    }
};

TEST_F(GridKeys, TheTabulatorReachesTheLeftTableRightBeforeTheRightOne) {
    form = std::make_shared<FormWithFields>(screen);
    show(3);
    grid().split(0).setSize(2250);
    find<QWidget>(windowOf(*form), "before").setFocus();
    QStringList order;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        order.append(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(order, (QStringList{"grid.Splits(0)", "grid.Splits(1)", "after"}));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &leftTable());
}

TEST_F(GridKeys, NoTableOfAGridThatIsNoStopIsReachedByTheTabulator) {
    show(3);
    grid().setTabStop(false);
    grid().split(0).setSize(2250);
    EXPECT_EQ(leftTable().focusPolicy(), Qt::ClickFocus);
    EXPECT_EQ(table().focusPolicy(), Qt::ClickFocus);
}

}  // namespace
}  // namespace hx::gui
