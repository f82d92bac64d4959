// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QScrollBar>

#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

constexpr std::int16_t altKey = 18;

using GridViewTest = GridFixture;

TEST_F(GridViewTest, ShowsTheTextsOfTheGridInItsColumns) {
    show(3);
    EXPECT_EQ(table().model()->rowCount(), 3);
    EXPECT_EQ(table().model()->index(1, numberOf("VarRecipe")).data().toString(), "Var2");
    EXPECT_EQ(table().model()->headerData(numberOf("VarRecipe"), Qt::Horizontal).toString(), "Variable");
}

TEST_F(GridViewTest, AClickMakesACellCurrentAndSelectsNoRow) {
    show(3);
    click(2, "VarRecipe");
    EXPECT_EQ(grid().row(), 2);
    EXPECT_EQ(grid().col(), numberOf("VarRecipe"));
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(GridViewTest, TheRecordSelectorSelectsRowsAlsoSeveralWithShiftAndCtrl) {
    show(9);
    clickSelector(2);
    EXPECT_EQ(grid().selectedRows().bookmarks(), std::vector({ado::Bookmark(3)}));
    clickSelector(4, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectedRows().bookmarks(), std::vector({ado::Bookmark(3), ado::Bookmark(4), ado::Bookmark(5)}));
    clickSelector(8, Qt::ControlModifier);
    EXPECT_EQ(grid().selectedRows().count(), 4);
    click(0, "VarRecipe");
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(GridViewTest, RowsSelectedInTheModelAreShownSelected) {
    show(9);
    grid().selectedRows().set({ado::Bookmark(7), ado::Bookmark(2), ado::Bookmark(3)});
    const auto* selection = table().selectionModel();
    EXPECT_TRUE(selection->isRowSelected(6, {}));
    EXPECT_TRUE(selection->isRowSelected(1, {}));
    EXPECT_TRUE(selection->isRowSelected(2, {}));
    EXPECT_FALSE(selection->isRowSelected(3, {}));
    EXPECT_EQ(grid().selectedRows().bookmarks().front(), ado::Bookmark(7));
    grid().selectedRows().clear();
    EXPECT_FALSE(selection->hasSelection());
}

TEST_F(GridViewTest, ShiftAndAnArrowExtendTheSelectionInExtendedModeOnly) {
    show(9);
    click(2, "VarRecipe");
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().row(), 3);
    EXPECT_EQ(grid().selectedRows().count(), 0);
    click(2, "VarRecipe");
    grid().setMultiSelect(forms::MultiSelect::extended);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectedRows().bookmarks(), std::vector({ado::Bookmark(3), ado::Bookmark(4), ado::Bookmark(5)}));
    press(Qt::Key_Up);
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(GridViewTest, TypingEditsTheCellAndLeavingTheRowStoresIt) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    ASSERT_NE(editor(), nullptr);
    type(*editor(), "yz");
    EXPECT_TRUE(grid().editorOpen());
    press(Qt::Key_Return);
    EXPECT_FALSE(grid().editorOpen());
    EXPECT_TRUE(grid().dataChanged());
    EXPECT_EQ(stored(2), "Var2");
    table().setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(stored(2), "xyz");
    EXPECT_FALSE(grid().dataChanged());
}

TEST_F(GridViewTest, EscapeGivesFirstTheCellBackThenTheRow) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    press(Qt::Key_Return);
    ASSERT_EQ(grid().text(1, numberOf("VarRecipe")), "x");
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    type(*editor(), "more");
    press(Qt::Key_Escape);
    EXPECT_EQ(grid().text(1, numberOf("VarRecipe")), "x");
    press(Qt::Key_Escape);
    EXPECT_EQ(grid().text(1, numberOf("VarRecipe")), "Var2");
    EXPECT_FALSE(grid().dataChanged());
}

TEST_F(GridViewTest, ARowThatMustNotBeLeftStaysCurrent) {
    show(5);
    grid().leavingRowEvent.connect([](bool& stay) { stay = true; });
    click(1, "VarRecipe");
    press(Qt::Key_X);
    press(Qt::Key_Return);
    click(3, "VarRecipe");
    EXPECT_EQ(grid().row(), 1);
    EXPECT_EQ(table().currentIndex().row(), 1);
    press(Qt::Key_Down);
    EXPECT_EQ(table().currentIndex().row(), 1);
}

TEST_F(GridViewTest, AKeyThatTheModelSwallowsGoesNoFurther) {
    show(3);
    click(0, "VarRecipe");
    std::vector<std::int16_t> keys;
    grid().keyDownEvent.connect([&](forms::KeyEvent& key) {
        if (key.code == altKey) return;
        keys.push_back(key.code);
        key.swallow();
    });
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Down);
    EXPECT_EQ(keys, (std::vector<std::int16_t>{forms::key::down, forms::key::down}));
    EXPECT_EQ(grid().row(), 0);
}

TEST_F(GridViewTest, ATypedCharacterComesToTheModelOnceAndWithTheCaret) {
    show(3);
    click(0, "VarRecipe");
    std::vector<std::pair<std::int32_t, bool>> typed;
    grid().keyPressEvent.connect([&](forms::KeyPress& key) {
        typed.emplace_back(key.character, grid().caretAtEnd());
        if (key.character == ' ') key.swallow();
    });
    press(Qt::Key_Space);
    EXPECT_EQ(editor(), nullptr);
    press(Qt::Key_A);
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_B);
    press(Qt::Key_Home);
    press(Qt::Key_Space);
    EXPECT_EQ(editor()->text(), "ab");
    EXPECT_EQ(typed, (std::vector<std::pair<std::int32_t, bool>>{{' ', true}, {'a', true}, {'b', true}, {' ', false}}));
}

TEST_F(GridViewTest, TheCellButtonIsClickedInTheCurrentRow) {
    show(3);
    std::vector<std::pair<int, int>> clicks;
    grid().buttonClickEvent.connect([&](std::int32_t column) { clicks.emplace_back(grid().row(), column); });
    const QRect rect = cell(2, "VarRecipe");
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, QPoint(rect.right() - 5, rect.center().y()));
    EXPECT_EQ(clicks, (std::vector<std::pair<int, int>>{{2, numberOf("VarRecipe")}}));
    QTest::mousePress(table().viewport(), Qt::LeftButton, {}, QPoint(rect.right() - 5, rect.center().y()));
    QTest::mouseRelease(table().viewport(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(clicks.size(), 1u);
}

TEST_F(GridViewTest, AClickOnAHeaderSortsAndShowsTheDirection) {
    show(3);
    QHeaderView& header = *table().horizontalHeader();
    const int column = numberOf("VarRecipe");
    const auto clickHeader = [&] {
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(column) + 40, 5));
    };
    clickHeader();
    EXPECT_EQ(grid().sortText(), "VarRecipe");
    EXPECT_TRUE(header.isSortIndicatorShown());
    EXPECT_EQ(header.sortIndicatorSection(), column);
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader();
    EXPECT_EQ(grid().sortText(), "VarRecipe DESC");
    EXPECT_EQ(header.sortIndicatorOrder(), Qt::DescendingOrder);
    clickHeader();
    EXPECT_EQ(grid().sortText(), "");
    EXPECT_FALSE(header.isSortIndicatorShown());
}

TEST_F(GridViewTest, ColumnsFollowTheModelAndReportWhatTheUserDoes) {
    show(3);
    QHeaderView& header = *table().horizontalHeader();
    const int name = numberOf("VarRecipe");
    EXPECT_EQ(header.sectionSize(name), screen.units().pixels(3000));
    header.resizeSection(name, 150);
    EXPECT_EQ(grid().columns()[static_cast<std::size_t>(name)]->width(), screen.units().twips(150));
    header.moveSection(header.visualIndex(name), 0);
    EXPECT_EQ(grid().columns()[static_cast<std::size_t>(name)]->order(), 0);
    grid().columns()[0]->setVisible(false);
    EXPECT_TRUE(header.isSectionHidden(0));
}

TEST_F(GridViewTest, TheLastColumnFillsTheTableAndKeepsItsWidth) {
    show(3);
    const QHeaderView& header = *table().horizontalHeader();
    EXPECT_EQ(header.length(), table().viewport()->width());
    for (const auto& column : grid().columns()) {
        if (column->dataField() == "VarRecipe") continue;
        EXPECT_EQ(column->width(), forms::Column::defaultWidth);
    }
}

TEST_F(GridViewTest, AColumnThatIsTakenFromTheEndKeepsTheWidthThatItWasSeenWith) {
    show(3);
    QHeaderView& header = *table().horizontalHeader();
    const int last = header.logicalIndex(header.count() - 1);
    grid().columns()[static_cast<std::size_t>(last)]->setWidth(300);
    const int seen = header.sectionSize(last);
    ASSERT_GT(seen, 200);
    header.moveSection(header.count() - 1, 0);
    EXPECT_EQ(header.sectionSize(last), seen);
    header.moveSection(0, header.count() - 1);
    EXPECT_EQ(header.length(), std::max(table().viewport()->width(), header.length()));
    header.moveSection(0, header.count() - 1);
    EXPECT_EQ(header.sectionSize(last), seen) << "another column came behind it";
}

TEST_F(GridViewTest, TheFirstSplitIsASecondTableThatScrollsAlong) {
    show(200);
    EXPECT_EQ(windowOf(*form).findChild<QTableView*>("grid.Splits(0)"), nullptr);
    grid().split(0).setSize(2250);
    ASSERT_TRUE(leftTable().isVisible());
    EXPECT_EQ(leftTable().width(), screen.units().pixels(2250));
    EXPECT_GT(table().x(), leftTable().width()) << "a bar stands between them";
    table().verticalScrollBar()->setValue(50);
    EXPECT_EQ(leftTable().verticalScrollBar()->value(), 50);
    EXPECT_EQ(leftTable().rowAt(5), table().rowAt(5));
    EXPECT_TRUE(table().verticalHeader()->isHidden());
    grid().split(0).setSize(0);
    EXPECT_FALSE(leftTable().isVisible());
    EXPECT_FALSE(table().verticalHeader()->isHidden());
}

TEST_F(GridViewTest, EndsWithItsWindowAndWithTheStatusLineWhileThatIsShown) {
    show(3);
    const auto bottom = [this] { return table().mapTo(&windowOf(*form), QPoint(0, table().height())).y(); };
    const double enough = grid().height() + 2 * form->sb->height();
    grid().setHeight(enough);
    EXPECT_EQ(bottom(), find<QWidget>(windowOf(*form), "sb").y());
    form->sb->setVisible(false);
    grid().setHeight(enough + 15);
    EXPECT_EQ(bottom(), windowOf(*form).height());
}

TEST_F(GridViewTest, TellsWhatLiesUnderAPoint) {
    show(3);
    const auto& units = screen.units();
    const auto at = [&](const QPoint& point) { return grid().hitTest(units.twips(point.x()), units.twips(point.y())); };
    const QPoint inCell = table().viewport()->mapToParent(cell(1, "VarRecipe").center());
    EXPECT_EQ(at(inCell), forms::GridHit::cell);
    EXPECT_EQ(at(QPoint(inCell.x(), 5)), forms::GridHit::columnHeader);
    EXPECT_EQ(at(QPoint(5, inCell.y())), forms::GridHit::recordSelector);
    EXPECT_EQ(at(QPoint(inCell.x(), table().height() - 5)), forms::GridHit::nowhere);
}

TEST_F(GridViewTest, TheMouseIsReportedInTwipsAfterTheCellUnderItIsCurrent) {
    show(3);
    std::vector<forms::MouseEvent> downs;
    std::int32_t rowAtDown = -1;
    grid().mouseDownEvent.connect([&](const forms::MouseEvent& mouse) {
        downs.push_back(mouse);
        rowAtDown = grid().row();
    });
    const QPoint point = cell(2, "VarRecipe").center();
    QTest::mouseClick(table().viewport(), Qt::RightButton, Qt::ControlModifier, point);
    ASSERT_EQ(downs.size(), 1u);
    const QPoint inGrid = table().viewport()->mapToParent(point);
    EXPECT_EQ(downs[0].button, forms::button::right);
    EXPECT_EQ(downs[0].shift, forms::shift::ctrl);
    EXPECT_EQ(downs[0].x, screen.units().twips(inGrid.x()));
    EXPECT_EQ(downs[0].y, screen.units().twips(inGrid.y()));
    EXPECT_EQ(rowAtDown, 2);
}

TEST_F(GridViewTest, TheMenuKeyIsTheRightMouseButton) {
    show(3);
    click(1, "VarRecipe");
    std::vector<std::int16_t> buttons;
    grid().mouseUpEvent.connect([&](const forms::MouseEvent& mouse) { buttons.push_back(mouse.button); });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), table().mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&table(), &event);
    EXPECT_EQ(buttons, std::vector{forms::button::right});
}

TEST_F(GridViewTest, OtherRowsTakeTheirPlaceWhenTheRecordsetIsNew) {
    show(3);
    click(2, "VarRecipe");
    form->fill(2);
    EXPECT_EQ(table().model()->rowCount(), 5);
    EXPECT_EQ(grid().row(), 0);
    EXPECT_EQ(table().currentIndex().row(), 0);
}

TEST_F(GridViewTest, AnOpenEditorIsGivenUpWhenTheRowsAreNew) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    ASSERT_NE(editor(), nullptr);
    grid().reload();
    handleEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_FALSE(grid().editorOpen());
    EXPECT_EQ(grid().text(1, numberOf("VarRecipe")), "Var2");
}

TEST_F(GridViewTest, ClosingTheWindowKeepsWhatIsBeingTyped) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    form->queryUnloadEvent.connect([this](bool& cancel, forms::UnloadMode) {
        grid().update();
        cancel = true;
    });
    windowOf(*form).close();
    EXPECT_EQ(stored(2), "x");
    EXPECT_TRUE(form->loaded());
}

TEST_F(GridViewTest, EndsWithItsFormWhileItIsEdited) {
    show(3);
    click(1, "VarRecipe");
    press(Qt::Key_X);
    form->unload(forms::UnloadMode::byCode);
    handleEvents();
    EXPECT_FALSE(form->loaded());
    form.reset();
    handleEvents();
}

}  // namespace
}  // namespace hx::gui
