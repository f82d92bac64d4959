// SPDX-License-Identifier: MIT
#include <chrono>
#include <gtest/gtest.h>

#include "forms/grid.h"
#include "grid_fixture.h"

namespace hx::forms {
namespace {

using ado::Bookmark;
using automation::Variant;
using support::errorNumber;

using Bookmarks = std::vector<Bookmark>;

TEST(SelectedRows, HoldEachBookmarkOnceInTheOrderOfSelection) {
    SelectedRows rows;
    Counter<> changes(rows.changed);
    rows.add(Bookmark(7));
    rows.add(Bookmark(3));
    rows.add(Bookmark(7));
    rows.add(Bookmark());
    EXPECT_EQ(changes.take(), 2);
    EXPECT_EQ(rows.bookmarks(), (Bookmarks{Bookmark(7), Bookmark(3)}));
    EXPECT_TRUE(rows.contains(Bookmark(3)));
    EXPECT_FALSE(rows.contains(Bookmark(4)));
    EXPECT_FALSE(rows.contains(Bookmark()));
}

TEST(SelectedRows, AreRemovedOneByOneOrAllAtOnce) {
    SelectedRows rows;
    rows.set({Bookmark(1), Bookmark(2), Bookmark(3)});
    Counter<> changes(rows.changed);
    rows.remove(Bookmark(2));
    rows.remove(Bookmark(2));
    rows.remove(Bookmark());
    EXPECT_EQ(rows.bookmarks(), (Bookmarks{Bookmark(1), Bookmark(3)}));
    EXPECT_FALSE(rows.contains(Bookmark(2)));
    rows.clear();
    rows.clear();
    EXPECT_EQ(rows.count(), 0);
    EXPECT_FALSE(rows.contains(Bookmark(1)));
    EXPECT_EQ(changes.take(), 2);
}

TEST(SelectedRows, AreReplacedAsAWhole) {
    SelectedRows rows;
    Counter<> changes(rows.changed);
    rows.set({Bookmark(2), Bookmark(), Bookmark(1), Bookmark(2)});
    EXPECT_EQ(rows.bookmarks(), (Bookmarks{Bookmark(2), Bookmark(1)}));
    rows.set({Bookmark(2), Bookmark(1)});
    EXPECT_EQ(changes.take(), 1) << "the same rows again are no change";
    rows.set({Bookmark(1)});
    EXPECT_FALSE(rows.contains(Bookmark(2)));
}

// A million look-ups among a million rows: with a search through the list this would take hours.
TEST(SelectedRows, AreFastWithAMillionRows) {
    constexpr std::int32_t million = 1'000'000;
    SelectedRows rows;
    Bookmarks all;
    for (ado::Key key = 1; key <= million; ++key) all.emplace_back(key);
    rows.set(std::move(all));
    rows.add(Bookmark(million));
    int found = 0;
    for (ado::Key key = 1; key <= 2 * million; key += 2) found += rows.contains(Bookmark(key)) ? 1 : 0;
    EXPECT_EQ(rows.count(), million);
    EXPECT_EQ(found, million / 2);
}

TEST(SelectedRows, AreReachedByName) {
    SelectedRows rows;
    const std::vector<Variant> five{5.0}, six{6.0}, first{0}, none{};
    rows.get("Add", five);
    rows.get("Add", six);
    EXPECT_EQ(rows.get("Count"), Variant(2));
    EXPECT_EQ(rows.get("Item", first), Variant(5.0));
    rows.get("Remove", five);
    EXPECT_EQ(rows.get("Item", first), Variant(6.0));
    rows.get("Clear");
    EXPECT_EQ(errorNumber([&] { rows.get("Item", first); }), automation::errBadIndex);
}

using GridSelection = GridTest;

TEST_F(GridSelection, FollowsTheRowsWhenOthersGo) {
    grid.selectedRows().add(recipes->bookmarkAt(2));
    grid.setRow(0);
    recipes->remove();
    EXPECT_TRUE(grid.selectedRows().contains(recipes->bookmarkAt(1)));
    EXPECT_EQ(grid.selectedRows().count(), 1);
}

TEST_F(GridSelection, HasThreeModes) {
    ChangeRecorder changes(grid);
    EXPECT_EQ(grid.multiSelect(), MultiSelect::simple);
    grid.set("MultiSelect", Variant(2));
    EXPECT_EQ(grid.multiSelect(), MultiSelect::extended);
    EXPECT_EQ(changes.take(), Names{"MultiSelect"});
    for (const std::int32_t mode : {-1, 3, 65536}) {
        EXPECT_EQ(errorNumber([&] { grid.set("MultiSelect", Variant(mode)); }), automation::errOverflow) << mode;
    }
}

}  // namespace
}  // namespace hx::forms
