// SPDX-License-Identifier: MIT

// A grid reached by name.
#include "grid_fixture.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Variant;
using support::errorNumber;

class GridMembers : public GridTest {
  protected:
    Variant call(const char* name, std::vector<Variant> args) { return grid.get(name, args); }
};

TEST_F(GridMembers, ReadCells) {
    EXPECT_EQ(grid.get("RowCount"), Variant(3));
    EXPECT_EQ(call("Text", {1, "Name"}), Variant("B"));
    EXPECT_EQ(call("Text", {1, 1}), Variant("B"));
    EXPECT_EQ(call("Value", {2, "ID"}), Variant(3));
    EXPECT_EQ(errorNumber([&] { call("Text", {3, "Name"}); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { call("Value", {-1, "Name"}); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { call("Text", {0, "Nowhere"}); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { call("Text", {0}); }), automation::errBadParamCount);
}

TEST_F(GridMembers, WriteCells) {
    call("SetText", {1, "Comment", "x"});
    EXPECT_EQ(grid.get("DataChanged"), Variant(true));
    grid.get("Update");
    EXPECT_EQ(stored("Comment"), "of A;x;of C;");
    EXPECT_EQ(call("Editable", {"ID"}), Variant(false));
    EXPECT_EQ(errorNumber([&] { call("SetText", {9, "Comment", "x"}); }), errBadIndex);
}

TEST_F(GridMembers, DropEditsAndReadAgain) {
    call("SetText", {1, "Comment", "x"});
    grid.get("Refetch");
    EXPECT_EQ(call("Text", {1, "Comment"}), Variant("x"));
    grid.get("CancelUpdate");
    EXPECT_EQ(call("Text", {1, "Comment"}), Variant("of B"));
    call("SetText", {1, "Comment", "y"});
    grid.get("RefetchRow");
    EXPECT_EQ(call("Text", {1, "Comment"}), Variant("of B"));
    EXPECT_EQ(call("HitTest", {10, 10}), Variant(0));
}

TEST_F(GridMembers, FillANewRow) {
    grid.set("AddNewMode", Variant(true));
    call("SetText", {-1, "Name", "D"});
    EXPECT_EQ(call("Text", {-1, "Name"}), Variant("D"));
    grid.get("Update");
    EXPECT_EQ(stored("Name"), "A;B;C;D;");
}

TEST_F(GridMembers, MoveTheCurrentCell) {
    grid.set("Row", Variant(2));
    EXPECT_EQ(grid.get("Row"), Variant(2));
    EXPECT_EQ(grid.get("Bookmark"), recipes->bookmarkAt(2).toVariant());
    grid.set("Col", Variant(1));
    EXPECT_EQ(grid.col(), 1);
    EXPECT_EQ(errorNumber([&] { grid.set("Row", Variant(3)); }), errBadIndex);
    call("SetText", {2, "Name", "A"});
    EXPECT_EQ(errorNumber([&] { grid.set("Row", Variant(0)); }), automation::errFail);
    EXPECT_EQ(grid.get("Row"), Variant(2));
}

TEST_F(GridMembers, SelectRows) {
    call("SelectRows", {2, 0});
    EXPECT_EQ(grid.get("SelectedCount"), Variant(2));
    EXPECT_EQ(grid.selectedRows().bookmarks()[0], recipes->bookmarkAt(2));
    EXPECT_EQ(grid.get("SelectedRows").asObject()->get("Count"), Variant(2));
    EXPECT_EQ(errorNumber([&] { call("SelectRows", {3}); }), errBadIndex);
    call("SelectRows", {});
    EXPECT_EQ(grid.get("SelectedCount"), Variant(0));
}

TEST_F(GridMembers, ClickHeadersAndButtons) {
    call("HeadClick", {"Name"});
    EXPECT_EQ(grid.get("SortText"), Variant("Name"));
    std::int32_t clicked = -1;
    grid.buttonClickEvent.connect([&](std::int32_t column) { clicked = column; });
    call("ButtonClick", {1, "Name"});
    EXPECT_EQ(clicked, 1);
    EXPECT_EQ(grid.row(), 1);
}

TEST_F(GridMembers, ReachColumnsAndSplits) {
    const auto column = call("Columns", {"Name"}).asObject();
    column->set("Width", Variant(std::int16_t{3000}));
    column->set("AllowSizing", Variant(std::int16_t{0}));
    column->set("Visible", Variant(std::int16_t{-1}));
    EXPECT_EQ(grid.columns()[1]->width(), 3000);
    EXPECT_FALSE(grid.columns()[1]->allowSizing());
    EXPECT_TRUE(grid.columns()[1]->visible());
    EXPECT_EQ(call("Columns", {std::int16_t{0}}).asObject()->get("DataField"), Variant("ID"));
    call("Splits", {0}).asObject()->set("Size", Variant(1500));
    EXPECT_EQ(grid.split(0).size(), 1500);
    EXPECT_EQ(grid.get("ColumnCount"), Variant(18));
    EXPECT_EQ(errorNumber([&] { call("Columns", {"Nowhere"}); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { call("Splits", {2}); }), errBadIndex);
}

TEST_F(GridMembers, AreReachedThroughTheForm) {
    const auto named = form->get("TDBRM").asObject();
    named->get("Font").asObject()->set("Size", Variant(std::int16_t{10}));
    EXPECT_EQ(grid.font().size(), 10);
    EXPECT_EQ(named->get("DataSource").asObject(), recipes);
}

}  // namespace
}  // namespace hx::forms
