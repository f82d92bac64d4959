// SPDX-License-Identifier: MIT
#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

using support::FaultPlan;
using Boxes = std::vector<ShownBox>;

class GridErrors : public GridFixture {
  protected:
    BoxAnswers boxes;
    const ShownBox cannotRead{std::string(forms::message::defaultTitle),
                              std::to_string(ado::dbErrUnspecified) + ": The disk cannot be read.", ""};

    /// From now on no row can be read, and none is known.
    void breakReading() {
        form->rows()->resync(ado::adAffectAll);
        form->faults.armFrom(1, FaultPlan::Kind::read);
    }
    /// The next read of rows fails, and none is known.
    void breakNextReading() {
        form->rows()->resync(ado::adAffectAll);
        form->faults.arm(1, FaultPlan::Kind::read, {ado::dbErrUnspecified, "The disk cannot be read."});
    }
    void paint() {
        table().viewport()->repaint();
        handleEvents();
    }
    /// The user goes on where he was before the message.
    void backToEditor() {
        ASSERT_TRUE(activate(windowOf(*form)));
        ASSERT_TRUE(editor()->hasFocus());
    }
    [[nodiscard]] QString shown(int row) {
        return table().model()->index(row, numberOf("VarRecipe")).data().toString();
    }
};

TEST_F(GridErrors, RowsThatCannotBeReadAreToldOnceAndShownAsSoonAsTheyCan) {
    show(3);
    breakReading();
    for (int i = 0; i < 4; ++i) paint();
    EXPECT_EQ(boxes.shown(), Boxes{cannotRead});
    EXPECT_EQ(shown(0), "");
    form->faults.disarm();
    paint();
    EXPECT_EQ(shown(0), "Var1");
    EXPECT_EQ(boxes.shown().size(), 1u);
    breakReading();
    for (int i = 0; i < 4; ++i) paint();
    EXPECT_EQ(boxes.shown(), (Boxes{cannotRead, cannotRead}));
}

TEST_F(GridErrors, TellInTheUsersLanguageThatMemoryIsMissing) {
    show(3);
    form->rows()->resync(ado::adAffectAll);
    form->faults.instead = [] { throw std::bad_alloc(); };
    form->faults.arm(1, FaultPlan::Kind::read);
    paint();
    EXPECT_EQ(boxes.shown(), (Boxes{{cannotRead.title, "-2147024882: Der Speicher reicht nicht aus.", ""}}));
}

TEST_F(GridErrors, APictureOfRowsThatCannotBeReadAsksForThemOnce) {
    show(3);
    breakReading();
    table().viewport()->repaint();
    EXPECT_EQ(form->faults.count(), 1);
    handleEvents();
    EXPECT_EQ(boxes.shown().size(), 1u);
}

TEST_F(GridErrors, RowsThatCannotBeCountedAreNone) {
    show(3);
    form->rows()->requery();
    form->faults.armFrom(1, FaultPlan::Kind::keys);
    grid().rowsChanged.raise();
    handleEvents();
    EXPECT_EQ(table().model()->rowCount(), 0);
    EXPECT_EQ(boxes.shown(), Boxes{cannotRead});
    form->faults.disarm();
    grid().rowsChanged.raise();
    EXPECT_EQ(table().model()->rowCount(), 3);
}

TEST_F(GridErrors, AHandlerCanTellTheUserItself) {
    show(3);
    std::vector<std::string> told;
    grid().viewErrorEvent.connect([&](forms::GridError& error) {
        told.push_back(error.description);
        error.response = 0;
    });
    breakReading();
    paint();
    EXPECT_EQ(told, std::vector<std::string>{"The disk cannot be read."});
    EXPECT_EQ(boxes.shown(), Boxes{});
}

TEST_F(GridErrors, ATextThatCannotBeHandedOverStaysInItsEditorAndTheNextTryIsTaken) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    ASSERT_NE(editor(), nullptr);
    breakNextReading();
    press(Qt::Key_Return);
    EXPECT_EQ(boxes.shown(), Boxes{cannotRead});
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "x");
    EXPECT_EQ(variable(1), "Var2");
    backToEditor();
    press(Qt::Key_Return);
    EXPECT_EQ(variable(1), "x");
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(boxes.shown().size(), 1u);
}

TEST_F(GridErrors, ATextThatCannotBeHandedOverIsToldOnceForEachTry) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    ASSERT_NE(editor(), nullptr);
    breakReading();
    press(Qt::Key_Return);
    handleEvents();
    EXPECT_EQ(boxes.shown(), Boxes{cannotRead});
    ASSERT_NE(editor(), nullptr);
    backToEditor();
    press(Qt::Key_Tab);
    EXPECT_EQ(boxes.shown(), (Boxes{cannotRead, cannotRead}));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), "x");
    EXPECT_EQ(grid().col(), numberOf("VarRecipe"));
}

TEST_F(GridErrors, ATextThatCannotBeHandedOverIsGivenUpWithEscape) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    breakNextReading();
    press(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    backToEditor();
    press(Qt::Key_Escape);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(variable(1), "Var2");
}

TEST_F(GridErrors, ARowThatCannotBeReadIsNotGoneTo) {
    show(3);
    click(0, "VarRecipe");
    breakNextReading();
    click(2, "VarRecipe");
    handleEvents();
    EXPECT_EQ(boxes.shown(), Boxes{cannotRead});
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(table().currentIndex().row(), 0);
    click(2, "VarRecipe");
    EXPECT_EQ(grid().row(), 2);
    EXPECT_EQ(table().currentIndex().row(), 2);
}

TEST_F(GridErrors, ARowThatIsGoneWithoutAWordIsNotGoneTo) {
    show(3);
    click(0, "VarRecipe");
    form->rows()->close();
    click(2, "VarRecipe");
    clickSelector(1);
    handleEvents();
    EXPECT_FALSE(table().currentIndex().isValid());
    EXPECT_EQ(boxes.shown(), Boxes{});
}

}  // namespace
}  // namespace hx::gui
