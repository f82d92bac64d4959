// SPDX-License-Identifier: MIT
#include "forms/multi_items.h"

#include <array>
#include <gtest/gtest.h>

#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::Error;
using automation::Variant;
using Names = std::vector<std::string>;

class MultiItemsTest : public ::testing::Test {
  protected:
    std::shared_ptr<HXMultiItems> control = std::make_shared<HXMultiItems>("hxMI");
    HXMultiItems& items = *control;

    // The properties that an action reports as changed.
    template <class Action>
    Names changesOf(const Action& action) {
        Names properties;
        const Subscription listening =
            items.changed.subscribe([&](std::string_view property) { properties.emplace_back(property); });
        action();
        return properties;
    }
};

TEST_F(MultiItemsTest, HaveNothingSelectedAtFirst) {
    EXPECT_FALSE(items.selectedItems().has_value());
    EXPECT_EQ(items.selectedCount(), 0U);
    EXPECT_EQ(items.itemFilter(), 0);
}

TEST_F(MultiItemsTest, GiveTheSelectionBackAsItWasAssigned) {
    const Names names = {"Motor 2", "Ventil_1", "ÄRGER", ""};
    items.setSelectedItems(names);
    EXPECT_EQ(items.selectedItems(), names);
    EXPECT_EQ(items.selectedCount(), 4U);
}

TEST_F(MultiItemsTest, AreNoListWithAnEmptySelection) {
    items.setSelectedItems(Names{"A"});
    items.setSelectedItems(Names{});
    EXPECT_FALSE(items.selectedItems().has_value());
    items.setSelectedItems(Names{"A"});
    items.setSelectedItems(std::nullopt);
    EXPECT_FALSE(items.selectedItems().has_value());
    items.select("A", true);
    items.select("A", false);
    EXPECT_FALSE(items.selectedItems().has_value());
}

TEST_F(MultiItemsTest, AddWhatIsCheckedAtTheEnd) {
    items.setSelectedItems(Names{"C", "A"});
    items.select("B", true);
    items.select("C", false);
    items.select("C", true);
    EXPECT_EQ(items.selectedItems(), (Names{"A", "B", "C"}));
}

TEST_F(MultiItemsTest, KeepTheOrderOfWhatStaysChecked) {
    items.setSelectedItems(Names{"C", "A", "B"});
    items.select("A", true);
    EXPECT_EQ(items.selectedItems(), (Names{"C", "A", "B"}));
    items.select("A", false);
    EXPECT_EQ(items.selectedItems(), (Names{"C", "B"}));
}

TEST_F(MultiItemsTest, CompareNamesIgnoringCase) {
    items.setSelectedItems(Names{"Öl_Temperatur"});
    EXPECT_TRUE(items.isSelected("öL_TEMPERATUR"));
    EXPECT_FALSE(items.isSelected("Öl"));
    items.select("ÖL_TEMPERATUR", true);
    EXPECT_EQ(items.selectedItems(), (Names{"Öl_Temperatur"})) << "the name stays as it was stored";
    items.select("öl_temperatur", false);
    EXPECT_FALSE(items.isSelected("Öl_Temperatur"));
}

TEST_F(MultiItemsTest, DropNoNameThatWasAssignedTwice) {
    items.setSelectedItems(Names{"A", "B", "a"});
    EXPECT_EQ(items.selectedItems(), (Names{"A", "B", "a"}));
    items.select("A", false);
    EXPECT_EQ(items.selectedItems(), (Names{"B"}));
}

TEST_F(MultiItemsTest, ReportEachChangeOnce) {
    EXPECT_EQ(changesOf([&] { items.setSelectedItems(Names{"A", "B"}); }), Names{"SelectedItems"});
    EXPECT_EQ(changesOf([&] { items.select("C", true); }), Names{"SelectedItems"});
    EXPECT_EQ(changesOf([&] { items.select("C", true); }), Names{});
    EXPECT_EQ(changesOf([&] { items.select(Names{"C", "D", "E"}, true); }), Names{"SelectedItems"});
    EXPECT_EQ(changesOf([&] { items.select(Names{"C", "D"}, true); }), Names{});
    EXPECT_EQ(changesOf([&] { items.select(Names{"C", "D", "X"}, false); }), Names{"SelectedItems"});
    EXPECT_EQ(changesOf([&] { items.select("X", false); }), Names{});
    EXPECT_EQ(changesOf([&] { items.setItemFilter(256); }), Names{"ItemFilter"});
    EXPECT_EQ(changesOf([&] { items.setItemFilter(256); }), Names{});
    EXPECT_EQ(items.selectedItems(), (Names{"A", "B", "E"}));
}

TEST_F(MultiItemsTest, CheckARangeInItsOrder) {
    items.select(Names{"C", "A", "B", "a"}, true);
    EXPECT_EQ(items.selectedItems(), (Names{"C", "A", "B"}));
}

TEST_F(MultiItemsTest, HoldAHundredThousandNames) {
    Names names;
    for (int i = 0; i < 100000; ++i) names.push_back("Variable_" + std::to_string(i));
    items.setSelectedItems(names);
    EXPECT_EQ(items.selectedItems(), names);
    items.select(std::span(names).first(99999), false);
    EXPECT_EQ(items.selectedItems(), Names{"Variable_99999"});
}

using MultiItemsByName = MultiItemsTest;

TEST_F(MultiItemsByName, KeepTheirPromises) { EXPECT_EQ(support::walkTables(items), 25 + 6); }

TEST_F(MultiItemsByName, ReadTheSelectionAsAListOfNames) {
    items.setSelectedItems(Names{"B", "A"});
    const auto list = items.get("SelectedItems").asObject();
    EXPECT_EQ(list->get("Count"), Variant(std::int32_t{2}));
    EXPECT_EQ(list->get("Item", std::array{Variant(std::int32_t{0})}), Variant("B"));
    EXPECT_EQ(list->get("Item", std::array{Variant(std::int32_t{1})}), Variant("A"));
    for (const std::int32_t number : {-1, 2}) {
        EXPECT_EQ(support::errorNumber([&] { (void)list->get("Item", std::array{Variant(number)}); }),
                  automation::errBadIndex);
    }
    items.setSelectedItems({});
    EXPECT_EQ(list->get("Count"), Variant(std::int32_t{2})) << "a list stays what it was when it was read";
    EXPECT_EQ(support::walkTables(*list), 2);
}

TEST_F(MultiItemsByName, AreEmptyWithoutASelection) { EXPECT_TRUE(items.get("SelectedItems").isEmpty()); }

TEST_F(MultiItemsByName, TakeAListBack) {
    items.setSelectedItems(Names{"B", "A"});
    const Variant list = items.get("SelectedItems");
    items.set("SelectedItems", Variant());
    EXPECT_EQ(items.selectedCount(), 0U);
    items.set("SelectedItems", list);
    EXPECT_EQ(items.selectedItems(), (Names{"B", "A"}));
    items.set("SelectedItems", automation::Null{});
    EXPECT_EQ(items.selectedCount(), 0U);
    items.set("SelectedItems", list);
    items.set("SelectedItems", Variant(automation::ObjectRef()));
    EXPECT_EQ(items.selectedCount(), 0U);
}

TEST_F(MultiItemsByName, RefuseWhatIsNoListAndKeepTheSelection) {
    items.setSelectedItems(Names{"A"});
    for (const Variant& value : {Variant("A"), Variant(std::int32_t{1}), Variant(true)}) {
        EXPECT_EQ(support::errorNumber([&] { items.set("SelectedItems", value); }), automation::errTypeMismatch);
    }
    const Variant noList = automation::ObjectRef(std::make_shared<Font>());
    EXPECT_EQ(support::errorNumber([&] { items.set("SelectedItems", noList); }), automation::errUnknownName);
    EXPECT_EQ(items.selectedItems(), Names{"A"});
}

TEST_F(MultiItemsByName, AreCheckedAndUncheckedByMethods) {
    const std::array name = {Variant("Motor")};
    (void)items.get("Select", name);
    EXPECT_EQ(items.get("IsSelected", name), Variant(true));
    EXPECT_EQ(items.get("SelectedCount"), Variant(std::int32_t{1}));
    (void)items.get("Unselect", name);
    EXPECT_EQ(items.get("IsSelected", name), Variant(false));
}

TEST(MultiItems, TellsWhichCheckedNamesAreNotAmongOthers) {
    HXMultiItems items("hxMI");
    items.setSelectedItems(std::vector<std::string>{"Tank.Ein", "B", "ÜBERLAST", "tank.ein", "b"});
    const std::vector<std::string> others = {"überlast", "c", "tank.ein"};
    const auto other = [&](std::size_t number) -> std::string_view { return others[number]; };
    EXPECT_EQ(items.selectedBeside(others.size(), other), std::vector<std::string>{"B"});
    items.select("B", false);
    EXPECT_EQ(items.selectedBeside(others.size(), other), std::vector<std::string>());
    EXPECT_EQ(items.selectedCount(), 3U);
    EXPECT_TRUE(items.isSelectedFolded("überlast"));
    EXPECT_FALSE(items.isSelectedFolded("b"));
}

// More than are looked for at the same time.
TEST(MultiItems, KeepsManyNamesInTheirOrder) {
    HXMultiItems items("hxMI");
    automation::TextList names;
    std::vector<std::string> expected;
    for (int i = 0; i < 1000; ++i) {
        names.append("V" + std::to_string(i * 7 % 1000));
        expected.push_back("V" + std::to_string(i * 7 % 1000));
    }
    items.setSelectedNames(names);
    EXPECT_EQ(items.selectedItems(), expected);
    for (const std::string& name : expected) EXPECT_TRUE(items.isSelected(name)) << name;
    EXPECT_EQ(items.selectedBeside(0, {}), expected);
    items.setSelectedNames({});
    EXPECT_EQ(items.selectedItems(), std::nullopt);
}

}  // namespace
}  // namespace hx::forms
