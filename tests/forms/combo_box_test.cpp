// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"

#include <gtest/gtest.h>

#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Variant;
using support::errorNumber;

class ComboBoxTest : public testing::Test {
  protected:
    ComboBoxTest() {
        for (ComboBox* box : {&list, &field}) {
            for (const char* text : {"Saft", "saft", "Bier"}) box->addItem(text);
        }
    }
    ComboBox list{"cmbChooseRecipe", ComboBox::Style::dropDownList};
    ComboBox field{"cboFilePath"};
};

TEST_F(ComboBoxTest, KeepsEntriesInTheOrderInWhichTheyWereAdded) {
    EXPECT_EQ(list.listCount(), 3);
    EXPECT_EQ(list.newIndex(), 2);
    EXPECT_EQ(list.list(0), "Saft");
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(list.text(), "");
}

TEST_F(ComboBoxTest, CarriesANumberWithEachEntry) {
    list.setItemData(list.newIndex(), 17);
    EXPECT_EQ(list.itemData(2), 17);
    EXPECT_EQ(list.itemData(0), 0);
    for (const std::int32_t index : {-1, 3}) {
        EXPECT_EQ(errorNumber([&] { list.setItemData(index, 1); }), errBadIndex);
        EXPECT_EQ(errorNumber([&] { (void)list.itemData(index); }), errBadIndex);
        EXPECT_EQ(errorNumber([&] { (void)list.list(index); }), errBadIndex);
    }
}

TEST_F(ComboBoxTest, ASelectionTakesOverTheTextAndRaisesAClick) {
    Counter<> clicks(list.clickEvent);
    list.setListIndex(2);
    list.setListIndex(2);
    EXPECT_EQ(list.text(), "Bier");
    EXPECT_EQ(clicks.take(), 1);
    list.setListIndex(-1);
    EXPECT_EQ(list.text(), "");
    EXPECT_EQ(clicks.take(), 1);
    EXPECT_EQ(errorNumber([&] { list.setListIndex(3); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { list.setListIndex(-2); }), errBadIndex);
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(ComboBoxTest, AssignedTextSelectsInAListTheEntryThatSaysExactlyThis) {
    list.setText("saft");
    EXPECT_EQ(list.listIndex(), 1);
    list.setText("BIER");
    EXPECT_EQ(list.listIndex(), 2);
    EXPECT_EQ(list.text(), "Bier");
    EXPECT_EQ(errorNumber([&] { list.setText("Wein"); }), errBadIndex);
    EXPECT_EQ(list.text(), "Bier");
    list.setText("");
    EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(ComboBoxTest, TypedTextIsNoEntry) {
    Counter<> changes(field.changeEvent), clicks(field.clickEvent);
    field.setListIndex(0);
    field.setText("<ProjectDir>");
    EXPECT_EQ(field.text(), "<ProjectDir>");
    EXPECT_EQ(field.listIndex(), -1);
    EXPECT_EQ(changes.take(), 1);
    EXPECT_EQ(clicks.take(), 1);
}

TEST_F(ComboBoxTest, TypedTextStaysWhenNothingIsSelectedAgain) {
    field.setText("C:\\");
    field.setListIndex(-1);
    EXPECT_EQ(field.text(), "C:\\");
}

TEST_F(ComboBoxTest, IsEmptyAfterClear) {
    list.setListIndex(1);
    list.get("Clear");
    EXPECT_EQ(list.listCount(), 0);
    EXPECT_EQ(list.listIndex(), -1);
    EXPECT_EQ(list.newIndex(), -1);
    EXPECT_EQ(list.text(), "");
}

TEST_F(ComboBoxTest, IsReachedByName) {
    const std::vector<Variant> second{1};
    EXPECT_EQ(list.get("List", second), Variant("saft"));
    list.set("ItemData", Variant(5), second);
    EXPECT_EQ(list.get("ItemData", second), Variant(5));
    const std::vector<Variant> text{"Wein"};
    list.get("AddItem", text);
    EXPECT_EQ(list.get("NewIndex"), Variant(3));
    EXPECT_EQ(list.get("ListCount"), Variant(4));
}

}  // namespace
}  // namespace hx::forms
