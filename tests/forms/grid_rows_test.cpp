// SPDX-License-Identifier: MIT

// What a grid shows, its current row, and reading again.
#include "grid_fixture.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Null;
using automation::Variant;
using support::errorNumber;

using GridRows = GridTest;

TEST_F(GridRows, ShowTheRecordset) {
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(text(0, "Name"), "A");
    EXPECT_EQ(text(2, "Comment"), "of C");
    EXPECT_EQ(text(1, "ID"), "2");
    EXPECT_EQ(text(1, "Enabled"), "False");
    recipes->moveFirst();
    recipes->moveNext();
    recipes->field("FilePath").setValue(Null{});
    recipes->update();
    EXPECT_EQ(text(1, "FilePath"), "") << "Null shows nothing";
    EXPECT_EQ(grid.value(1, col("FilePath")), Variant(Null{}));
    EXPECT_EQ(grid.value(1, col("ID")), Variant(2));
}

TEST_F(GridRows, AreNotThereWithoutAnOpenRecordset) {
    recipes->close();
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.row(), -1);
    EXPECT_EQ(grid.text(0, 1), "");
    EXPECT_EQ(grid.value(0, 1), Variant(Null{}));
    EXPECT_TRUE(grid.bookmark().isNull());
    EXPECT_TRUE(grid.atBofOrEof());
    EXPECT_FALSE(grid.editable(1));
    EXPECT_EQ(errorNumber([&] { grid.setRow(0); }), errBadIndex);
    Grid unbound("tdbRM");
    EXPECT_EQ(unbound.rowCount(), 0);
    unbound.reload();
    unbound.refetch();
    unbound.refetchRow();
    unbound.update();
    unbound.cancelUpdate();
    EXPECT_EQ(errorNumber([&] { unbound.setAddNewMode(true); }), ado::adErrObjectClosed);
}

TEST_F(GridRows, AreEmptyOutsideOfTheGrid) {
    EXPECT_EQ(grid.text(3, 1), "");
    EXPECT_EQ(grid.text(-1, 1), "");
    EXPECT_EQ(grid.text(0, 99), "");
    EXPECT_EQ(grid.text(0, -1), "");
    EXPECT_EQ(grid.value(3, 1), Variant(Null{}));
    EXPECT_EQ(grid.value(-1, 1), Variant(Null{}));
}

TEST_F(GridRows, OfAColumnThatTheRecordsetLacksAreEmpty) {
    grid.addColumn("Nowhere");
    EXPECT_EQ(text(0, "Nowhere"), "");
    EXPECT_FALSE(grid.editable(col("Nowhere")));
}

TEST_F(GridRows, FollowTheColumnsWhateverTheirOrder) {
    grid.clearColumns();
    grid.addColumn("comment");
    grid.addColumn("NAME");
    EXPECT_EQ(grid.text(0, 0), "of A");
    EXPECT_EQ(grid.text(0, 1), "A");
}

TEST_F(GridRows, HaveTheRecordsetsCurrentRow) {
    Counter<> moves(grid.currentCellChanged);
    EXPECT_EQ(grid.row(), 0);
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(grid.row(), 2);
    EXPECT_EQ(recipes->field("Name").value(), Variant("C"));
    EXPECT_EQ(moves.take(), 1);
    EXPECT_TRUE(grid.setRow(2));
    EXPECT_EQ(moves.take(), 0);
    recipes->moveFirst();
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(grid.bookmark(), recipes->bookmark());
    EXPECT_FALSE(grid.atBofOrEof());
    recipes->movePrevious();
    EXPECT_EQ(grid.row(), -1);
    EXPECT_TRUE(grid.bookmark().isNull());
    EXPECT_TRUE(grid.atBofOrEof());
    EXPECT_EQ(errorNumber([&] { grid.setRow(3); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { grid.setRow(-1); }), errBadIndex);
}

TEST_F(GridRows, HaveACurrentColumn) {
    Counter<> moves(grid.currentCellChanged);
    grid.setCol(2);
    grid.setCol(2);
    EXPECT_EQ(grid.col(), 2);
    EXPECT_EQ(moves.take(), 1);
    EXPECT_EQ(errorNumber([&] { grid.setCol(-1); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { grid.setCol(99); }), errBadIndex);
    grid.clearColumns();
    EXPECT_EQ(grid.col(), 0);
}

TEST_F(GridRows, ThatSomebodyHasDeletedReadAsEmpty) {
    EXPECT_EQ(text(1, "Name"), "B");
    deleteElsewhere("B");
    grid.refetch();
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(text(1, "Name"), "");
    EXPECT_EQ(text(2, "Name"), "C");
}

TEST_F(GridRows, ThatSomebodyHasDeletedArePassedOver) {
    EXPECT_EQ(text(1, "Name"), "B");
    deleteElsewhere("B");
    grid.refetch();
    EXPECT_FALSE(grid.setRow(1));
    EXPECT_EQ(grid.row(), 2);
}

TEST_F(GridRows, ThatTheRecordsetDeletesAreGoneAtOnce) {
    grid.setRow(1);
    recipes->remove();
    EXPECT_EQ(grid.row(), -1);
    EXPECT_EQ(grid.rowCount(), 2);
    EXPECT_EQ(text(1, "Name"), "C");
    EXPECT_TRUE(grid.setRow(1));
    EXPECT_EQ(grid.row(), 1);
}

TEST_F(GridRows, AreReadAgainFromTheReopenedRecordset) {
    grid.selectedRows().add(recipes->bookmarkAt(1));
    grid.editorReported("x", 0);
    recipes->close();
    recipes->setSource("SELECT * FROM TrcpRecipe WHERE ID > 1");
    recipes->setCommandType(ado::adCmdText);
    recipes->open();
    Counter<> reads(grid.rowsChanged), moves(grid.currentCellChanged);
    grid.reload();
    EXPECT_EQ(reads.take(), 1);
    EXPECT_EQ(moves.take(), 1);
    EXPECT_EQ(grid.rowCount(), 2);
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(text(0, "Name"), "B");
    EXPECT_EQ(grid.selectedRows().count(), 0);
    EXPECT_FALSE(grid.editorOpen());
}

TEST_F(GridRows, ReloadDropsWhatWaitsToBeWritten) {
    type(1, "Comment", "lost");
    grid.reload();
    EXPECT_FALSE(grid.dataChanged());
    EXPECT_EQ(text(1, "Comment"), "of B");
    grid.setAddNewMode(true);
    grid.reload();
    EXPECT_FALSE(grid.addNewMode());
    EXPECT_EQ(recipes->editMode(), ado::adEditNone);
    EXPECT_EQ(stored("Comment"), "of A;of B;of C;");
}

TEST_F(GridRows, RefetchKeepsSelectionCurrentRowAndEdit) {
    grid.setRow(1);
    grid.selectedRows().add(recipes->bookmarkAt(2));
    EXPECT_EQ(text(0, "Comment"), "of A");
    {
        ado::Recordset other;
        other.open("TrcpRecipe", connect());
        other.field("Comment").setValue(Variant("elsewhere"));
        other.update();
    }
    EXPECT_EQ(text(0, "Comment"), "of A") << "pages that have been read are kept";
    Counter<> reads(grid.rowsChanged);
    grid.refetch();
    EXPECT_EQ(reads.take(), 1);
    EXPECT_EQ(text(0, "Comment"), "elsewhere");
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(grid.selectedRows().count(), 1);
    type(1, "Comment", "typed");
    grid.refetch();
    EXPECT_EQ(text(1, "Comment"), "typed");
    EXPECT_TRUE(grid.dataChanged());
}

TEST_F(GridRows, RefetchRowReadsTheCurrentRowAndDropsItsEdit) {
    type(1, "Comment", "typed");
    std::int32_t read = -1;
    grid.rowChanged.connect([&](std::int32_t row) { read = row; });
    grid.refetchRow();
    EXPECT_EQ(read, 1);
    EXPECT_EQ(text(1, "Comment"), "of B");
    EXPECT_FALSE(grid.dataChanged());
}

TEST_F(GridRows, RefetchRowOfARowThatIsGoneShowsNothing) {
    grid.setRow(1);
    EXPECT_EQ(text(1, "Name"), "B");
    deleteElsewhere("B");
    grid.refetchRow();
    EXPECT_EQ(text(1, "Name"), "");
}

TEST_F(GridRows, AskTheViewWhatLiesUnderAPoint) {
    EXPECT_EQ(grid.hitTest(10, 10), GridHit::nowhere);
    grid.setHitTester([](double x, double) { return x > 100 ? GridHit::cell : GridHit::columnHeader; });
    EXPECT_EQ(grid.hitTest(200, 10), GridHit::cell);
    EXPECT_EQ(grid.hitTest(20, 10), GridHit::columnHeader);
}

}  // namespace
}  // namespace hx::forms
