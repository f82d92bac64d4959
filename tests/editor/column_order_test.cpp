// SPDX-License-Identifier: MIT
#include "editor/column_order.h"

#include <gtest/gtest.h>

namespace hx::editor {
namespace {

struct ColumnOrder : testing::Test {
    ColumnOrder() {
        for (const char* field : {"ID", "ParentID", "VarRecipe", "ChildID"}) grid.addColumn(field);
    }
    [[nodiscard]] std::vector<std::int16_t> orders() const {
        std::vector<std::int16_t> found;
        for (const auto& column : grid.columns()) found.push_back(column->order());
        return found;
    }
    forms::Grid grid{"tdbRM"};
};

using Orders = std::vector<std::int16_t>;

TEST_F(ColumnOrder, FourColumnsInTheirNaturalOrderYieldTheNaturalText) { EXPECT_EQ(columnOrderText(grid), ",0,1,2,3"); }

TEST_F(ColumnOrder, EveryNumberStandsBehindAComma) {
    grid.columns()[2]->setOrder(0);
    grid.columns()[0]->setOrder(2);
    EXPECT_EQ(columnOrderText(grid), ",2,1,0,3");
}

TEST_F(ColumnOrder, ATextGivesEachColumnItsPlace) {
    applyColumnOrder(grid, ",3,2,1,0");
    EXPECT_EQ(orders(), (Orders{3, 2, 1, 0}));
}

TEST_F(ColumnOrder, WhatStandsBeforeTheFirstCommaIsSkipped) {
    applyColumnOrder(grid, "2,1,0,3,2");
    EXPECT_EQ(orders(), (Orders{1, 0, 3, 2}));
}

TEST_F(ColumnOrder, MoreNumbersThanColumnsAreIgnored) {
    applyColumnOrder(grid, ",1,0,3,2,0,1,2");
    EXPECT_EQ(orders(), (Orders{1, 0, 3, 2}));
}

TEST_F(ColumnOrder, FewerNumbersLeaveTheOtherColumnsAsTheyAre) {
    applyColumnOrder(grid, ",1,0");
    EXPECT_EQ(orders(), (Orders{1, 0, 2, 3}));
}

TEST_F(ColumnOrder, ANumberNotBelowTheCountLeavesItsColumnUnchanged) {
    applyColumnOrder(grid, ",4,0,99,1");
    EXPECT_EQ(orders(), (Orders{0, 0, 2, 1}));
}

TEST_F(ColumnOrder, AnEmptyTextChangesNothing) {
    applyColumnOrder(grid, ",3,2,1,0");
    applyColumnOrder(grid, "");
    EXPECT_EQ(orders(), (Orders{3, 2, 1, 0}));
}

TEST_F(ColumnOrder, ANumberBelowZeroIsNoPlace) {
    applyColumnOrder(grid, ",-1,0,1,2");
    EXPECT_EQ(orders(), (Orders{0, 0, 1, 2}));
}

TEST_F(ColumnOrder, WhatIsNoNumberReadsAsTheFirstPlace) {
    applyColumnOrder(grid, ",1,x,,2");
    EXPECT_EQ(orders(), (Orders{1, 0, 0, 2}));
}

TEST_F(ColumnOrder, AnEndlesslyLargeNumberIsNoPlace) {
    applyColumnOrder(grid, ",1e300,1,2,3");
    EXPECT_EQ(orders(), (Orders{0, 1, 2, 3}));
}

TEST_F(ColumnOrder, AGridWithoutColumnsHasAnEmptyText) {
    forms::Grid empty("tdbRM");
    applyColumnOrder(empty, ",0,1");
    EXPECT_EQ(columnOrderText(empty), "");
}

}  // namespace
}  // namespace hx::editor
