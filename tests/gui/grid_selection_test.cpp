// SPDX-License-Identifier: MIT
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <ctime>
#include <random>

#include "adapters/sqlite/project_file.h"
#include "adapters/sqlite/provider.h"
#include "gui/grid_fixture.h"

namespace hx::gui {
namespace {

using Rows = std::vector<ado::Bookmark>;

class GridSelection : public GridFixture {
  protected:
    QTemporaryDir folder;
    sqlite::Provider provider;

    /// A closed recordset on a project of so many members.
    [[nodiscard]] std::shared_ptr<ado::Recordset> manyRows(int count) {
        const std::string file = folder.filePath("many.hxs").toStdString();
        sqlite::createProject(file);
        const auto connection = std::make_shared<ado::Connection>(provider);
        connection->open("Data Source=" + file + ";Mode=Read|Write|Share Deny None;");
        auto rows = std::make_shared<ado::Recordset>();
        rows->open("TrcpRecipeMember", connection);
        connection->beginTrans();
        for (int i = 1; i <= count; ++i) {
            rows->addNew(std::array{std::pair<std::string, automation::Variant>("VarRecipe", "V" + std::to_string(i))});
        }
        connection->commitTrans();
        rows->close();
        return rows;
    }
    /// Shows the same number of rows again, the first one current.
    void showOthers() {
        form->rows()->requery();
        grid().reload();
    }
};

TEST_F(GridSelection, StartsAfreshWithShiftAndAnArrowWhenTheRowsAreNew) {
    show(9);
    grid().setMultiSelect(forms::MultiSelect::extended);
    click(5, "VarRecipe");
    press(Qt::Key_Down, Qt::ShiftModifier);
    ASSERT_EQ(grid().selectedRows().bookmarks(), (Rows{ado::Bookmark(6), ado::Bookmark(7)}));
    showOthers();
    ASSERT_EQ(grid().row(), 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectedRows().bookmarks(), (Rows{ado::Bookmark(1), ado::Bookmark(2)}));
}

TEST_F(GridSelection, StartsAfreshWithShiftAndAClickWhenTheRowsAreNew) {
    show(9);
    click(5, "VarRecipe");
    showOthers();
    click(2, "VarRecipe", Qt::ShiftModifier);
    EXPECT_EQ(grid().selectedRows().bookmarks(), (Rows{ado::Bookmark(1), ado::Bookmark(2), ado::Bookmark(3)}));
}

TEST_F(GridSelection, StartsAfreshInTheRecordSelectorWhenTheRowsAreNew) {
    show(9);
    clickSelector(5);
    showOthers();
    clickSelector(2, Qt::ShiftModifier);
    EXPECT_EQ(grid().selectedRows().bookmarks(), (Rows{ado::Bookmark(1), ado::Bookmark(2), ado::Bookmark(3)}));
}

TEST_F(GridSelection, ManyRowsOfASortedRecordsetAreShownSelectedAtOnce) {
    constexpr int count = 20'000;
    show(3);
    const auto rows = manyRows(count);
    rows->open("SELECT * FROM TrcpRecipeMember ORDER BY VarRecipe DESC");
    grid().setDataSource(rows);
    Rows all;
    for (int key = 1; key <= count; ++key) all.emplace_back(key);
    std::ranges::shuffle(all, std::mt19937(1));
    const std::clock_t begin = std::clock();
    for (int i = 0; i < 100; ++i) EXPECT_GE(rows->indexOf(all[static_cast<std::size_t>(i)]), 0);
    const std::clock_t walks = std::clock() - begin;
    grid().selectedRows().set(all);
    // A hundred walks take their time each; all rows together take one.
    EXPECT_LT(std::clock() - begin - walks, walks * (count / 100) / 4);
    EXPECT_TRUE(table().selectionModel()->isRowSelected(0, {}));
    EXPECT_TRUE(table().selectionModel()->isRowSelected(count - 1, {}));
    EXPECT_EQ(grid().selectedRows().count(), count);
}

TEST_F(GridSelection, RowsOfASortedRecordsetAreShownWhereTheyStand) {
    constexpr int count = 40;
    show(3);
    const auto rows = manyRows(count);
    rows->open("SELECT * FROM TrcpRecipeMember ORDER BY ID DESC");
    grid().setDataSource(rows);
    Rows some;
    for (int key = 1; key <= count; key += 2) some.emplace_back(key);
    some.emplace_back(count + 7);
    grid().selectedRows().set(some);
    for (int row = 0; row < count; ++row) {
        EXPECT_EQ(table().selectionModel()->isRowSelected(row, {}), row % 2 == 1) << row;
    }
}

}  // namespace
}  // namespace hx::gui
