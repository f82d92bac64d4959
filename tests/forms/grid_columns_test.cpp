// SPDX-License-Identifier: MIT

// Columns, their order, translations and sorting.
#include "grid_fixture.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::errOverflow;
using automation::Variant;
using support::errorNumber;

class GridColumns : public testing::Test {
  protected:
    GridColumns() {
        for (const char* field : {"ID", "ParentID", "VarRecipe", "ChildID"}) grid.addColumn(field);
    }
    [[nodiscard]] std::string shown() const {
        std::string fields;
        for (const Column* column : grid.columnsInDisplayOrder()) fields += column->dataField() + ";";
        return fields;
    }
    [[nodiscard]] std::string orders() const {
        std::string all;
        for (const auto& column : grid.columns()) all += std::to_string(column->order());
        return all;
    }
    Grid grid{"tdbRM"};
};

TEST_F(GridColumns, AreCalledAsTheirFieldsAndStandInTheOrderInWhichTheyWereAdded) {
    EXPECT_EQ(grid.columns()[2]->caption(), "VarRecipe");
    EXPECT_EQ(orders(), "0123");
    EXPECT_EQ(shown(), "ID;ParentID;VarRecipe;ChildID;");
    EXPECT_EQ(grid.columns()[0]->width(), Column::defaultWidth);
}

TEST_F(GridColumns, AreFoundByFieldOrNumber) {
    EXPECT_EQ(&grid.column(Variant("varrecipe")), grid.columns()[2].get());
    EXPECT_EQ(&grid.column(Variant(3)), grid.columns()[3].get());
    EXPECT_EQ(grid.findColumn("CHILDID"), grid.columns()[3].get());
    EXPECT_EQ(grid.findColumn("Child"), nullptr);
    EXPECT_EQ(grid.columnNumber(Variant("ChildID")), 3);
    for (const Variant& index : {Variant("2"), Variant(-1), Variant(4)}) {
        EXPECT_EQ(errorNumber([&] { (void)grid.column(index); }), errBadIndex);
    }
}

TEST_F(GridColumns, ReportAddingRemovingAndReordering) {
    Counter<> changes(grid.columnsChanged);
    grid.addColumn("Note");
    EXPECT_EQ(changes.take(), 1);
    grid.column(Variant(0)).setOrder(9);
    EXPECT_EQ(changes.take(), 1);
    grid.column(Variant(0)).setWidth(500);
    EXPECT_EQ(changes.take(), 0);
    const auto removed = grid.columns()[0];
    grid.clearColumns();
    EXPECT_EQ(changes.take(), 1);
    removed->setOrder(1);
    EXPECT_EQ(changes.take(), 0) << "a removed column is no longer the grid's";
    grid.clearColumns();
    EXPECT_EQ(changes.take(), 0);
}

TEST_F(GridColumns, AreShownByOrderAndTiesInListOrder) {
    grid.column(Variant("ChildID")).setOrder(0);
    EXPECT_EQ(shown(), "ID;ChildID;ParentID;VarRecipe;");
    grid.column(Variant("ID")).setOrder(7);
    grid.column(Variant("ParentID")).setVisible(false);
    EXPECT_EQ(shown(), "ChildID;ParentID;VarRecipe;ID;");
}

TEST_F(GridColumns, CloseUpWhenTheUserMovesOne) {
    Counter<> changes(grid.columnsChanged);
    grid.columnMoved(0, 2);
    EXPECT_EQ(shown(), "ParentID;VarRecipe;ID;ChildID;");
    EXPECT_EQ(orders(), "2013");
    EXPECT_EQ(changes.take(), 1);
    grid.columnMoved(3, 0);
    EXPECT_EQ(shown(), "ChildID;ParentID;VarRecipe;ID;");
    grid.columnMoved(3, 99);
    EXPECT_EQ(shown(), "ParentID;VarRecipe;ID;ChildID;");
    EXPECT_EQ(errorNumber([&] { grid.columnMoved(4, 0); }), errBadIndex);
}

TEST_F(GridColumns, AreResizedByTheUserWhereThatIsAllowed) {
    grid.columnResized(0, 900);
    EXPECT_EQ(grid.columns()[0]->width(), 900);
    grid.columns()[0]->setAllowSizing(false);
    grid.columnResized(0, 100);
    EXPECT_EQ(grid.columns()[0]->width(), 900);
    EXPECT_EQ(errorNumber([&] { grid.columnResized(-1, 100); }), errBadIndex);
}

TEST_F(GridColumns, RefuseLengthsAndPlacesBelowZero) {
    Column& column = grid.column(Variant(0));
    EXPECT_EQ(errorNumber([&] { column.setWidth(-1); }), errOverflow);
    EXPECT_EQ(errorNumber([&] { column.setOrder(-1); }), errOverflow);
    column.setWidth(0);
    EXPECT_EQ(column.width(), 0);
    EXPECT_EQ(errorNumber([&] { grid.split(0).setSize(-1); }), errOverflow);
}

TEST_F(GridColumns, ReportTheirOwnChanges) {
    Column& column = grid.column(Variant(0));
    std::string changes;
    const auto subscription =
        column.changed.subscribe([&](std::string_view name) { changes += std::string(name) + ";"; });
    column.setCaption("Variable");
    column.setVisible(false);
    column.setVisible(false);
    column.setButton(true);
    column.setButtonPicture({"<svg/>"});
    column.setLocked(true);
    EXPECT_EQ(changes, "Caption;Visible;Button;ButtonPicture;Locked;");
}

TEST_F(GridColumns, OutliveTheGrid) {
    auto owned = std::make_unique<Grid>("tdbRM");
    owned->addColumn("ID");
    const auto column = owned->columns()[0];
    owned.reset();
    column->setOrder(3);
    EXPECT_EQ(column->order(), 3);
}

TEST_F(GridColumns, LieInTwoSplits) {
    Counter<> changes(grid.split(0).changed);
    grid.split(0).setSize(1500);
    grid.split(0).setSize(1500);
    EXPECT_EQ(changes.take(), 1);
    EXPECT_EQ(grid.split(1).size(), 0);
    EXPECT_EQ(errorNumber([&] { (void)grid.split(2); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { (void)grid.split(-1); }), errBadIndex);
}

TEST_F(GridColumns, SortByFieldThenBackwardsThenNotAtAll) {
    std::vector<std::int32_t> heads;
    grid.headClickEvent.connect([&](std::int32_t column) { heads.push_back(column); });
    grid.headClick(2);
    EXPECT_EQ(grid.sortText(), "VarRecipe");
    grid.headClick(2);
    EXPECT_EQ(grid.sortText(), "VarRecipe DESC");
    grid.headClick(2);
    EXPECT_EQ(grid.sortText(), "");
    grid.headClick(2);
    grid.headClick(3);
    EXPECT_EQ(grid.sortText(), "ChildID") << "another column begins with its field";
    EXPECT_EQ(heads, (std::vector<std::int32_t>{2, 2, 2, 2, 3}));
    EXPECT_EQ(errorNumber([&] { grid.headClick(4); }), errBadIndex);
}

TEST_F(GridColumns, SortByFieldsWithUnusualNamesInBrackets) {
    for (const char* field : {"Zweite Spalte", "2nd", "Order", "Größe"}) {
        grid.addColumn(field);
        const auto number = static_cast<std::int32_t>(grid.columns().size()) - 1;
        grid.headClick(number);
        EXPECT_EQ(grid.sortText(), "[" + std::string(field) + "]");
        grid.headClick(number);
        EXPECT_EQ(grid.sortText(), "[" + std::string(field) + "] DESC");
        grid.headClick(number);
        EXPECT_EQ(grid.sortText(), "");
    }
}

using GridSorting = GridTest;

TEST_F(GridSorting, WritesTheEditedRowFirst) {
    type(1, "Comment", "x");
    grid.headClick(col("Name"));
    EXPECT_EQ(grid.sortText(), "Name");
    EXPECT_EQ(stored("Comment"), "of A;x;of C;");
}

TEST_F(GridSorting, IsRefusedWhileTheRowCannotBeLeft) {
    Counter<std::int32_t> clicks(grid.headClickEvent);
    type(1, "Name", "A");
    grid.headClick(col("Name"));
    EXPECT_EQ(grid.sortText(), "");
    EXPECT_EQ(clicks.take(), 0);
    EXPECT_EQ(text(1, "Name"), "A");
}

using GridTranslations = GridTest;

TEST_F(GridTranslations, ShowATextForAValueAndNothingForAnUnknownOne) {
    int asked = 0;
    const auto one = [&](const Variant& value) -> std::optional<std::string> {
        ++asked;
        if (value == Variant(2)) return "zwei";
        return std::nullopt;
    };
    Counter<> reads(grid.rowsChanged);
    grid.column(Variant("ID")).valueItems().setSource(one);
    EXPECT_EQ(reads.take(), 1);
    EXPECT_EQ(text(1, "ID"), "zwei");
    EXPECT_EQ(text(0, "ID"), "");
    EXPECT_EQ(grid.value(1, col("ID")), Variant(2));
    EXPECT_EQ(asked, 2);
}

TEST_F(GridTranslations, AskTheSourceOnceForEachValueUntilTheyAreCleared) {
    int asked = 0;
    std::string name = "alt";
    ValueItems& items = grid.column(Variant("Options")).valueItems();
    EXPECT_FALSE(items.translates());
    items.setSource([&](const Variant&) {
        ++asked;
        return name;
    });
    EXPECT_TRUE(items.translates());
    for (const std::int32_t row : {0, 1, 2, 0}) EXPECT_EQ(text(row, "Options"), "alt");
    EXPECT_EQ(asked, 1);
    name = "neu";
    Counter<> reads(grid.rowsChanged);
    items.clear();
    EXPECT_EQ(reads.take(), 1);
    EXPECT_EQ(text(0, "Options"), "neu");
    EXPECT_EQ(asked, 2);
}

TEST_F(GridTranslations, AskTheSourceAgainForWhatItCouldNotTell) {
    int asked = 0;
    ValueItems& items = grid.column(Variant("Options")).valueItems();
    items.setSource([&](const Variant&) -> std::optional<std::string> {
        if (++asked == 1) throw automation::Error(7, "busy");
        return "da";
    });
    EXPECT_EQ(errorNumber([&] { (void)text(0, "Options"); }), 7);
    EXPECT_EQ(text(0, "Options"), "da");
    EXPECT_EQ(text(1, "Options"), "da");
    EXPECT_EQ(asked, 2);
}

TEST(ValueItems, TellKindsOfValuesApart) {
    ValueItems items;
    EXPECT_EQ(items.display(Variant(1.5)), "1.5");
    items.setSource([](const Variant& value) {
        return std::to_string(static_cast<int>(value.type())) + ":" + automation::toText(value);
    });
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(items.display(Variant(std::int32_t{1})), "3:1");
        EXPECT_EQ(items.display(Variant(std::int16_t{1})), "2:1");
        EXPECT_EQ(items.display(Variant(1.0)), "5:1");
        EXPECT_EQ(items.display(Variant("1")), "8:1");
        EXPECT_EQ(items.display(Variant(true)), "11:True");
        EXPECT_EQ(items.display(Variant()), "0:");
        EXPECT_EQ(items.display(Variant(automation::ObjectRef())), "9:");
        EXPECT_EQ(items.display(Variant(automation::Null{})), "1:");
    }
}

}  // namespace
}  // namespace hx::forms
