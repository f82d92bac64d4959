// SPDX-License-Identifier: MIT

// Status bars and tool bars.
#include <gtest/gtest.h>

#include "forms/status_bar.h"
#include "forms/tool_bar.h"
#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Variant;
using support::errorNumber;

TEST(StatusBar, CountsItsPanelsFromOne) {
    StatusBar bar("sb", 3);
    EXPECT_EQ(bar.panelCount(), 3);
    bar.panel(1).setText("Func:");
    const std::vector<Variant> first{1};
    EXPECT_EQ(bar.get("Panels", first).asObject()->get("Text"), Variant("Func:"));
    for (const std::int32_t number : {0, 4, -1}) {
        EXPECT_EQ(errorNumber([&] { (void)bar.panel(number); }), errBadIndex);
    }
}

TEST(StatusBar, APanelReportsNewTextOnly) {
    StatusBar bar("sb", 1);
    Counter<> changes(bar.panel(1).changed);
    bar.panel(1).setText("1");
    bar.panel(1).setText("1");
    EXPECT_EQ(changes.take(), 1);
}

class ToolBarTest : public testing::Test {
  protected:
    ToolBar bar{"tbrfunc"};
    ToolButton& first = bar.addButton("New", {});
    ToolButton& second = bar.addButton("Edit", {});
};

TEST_F(ToolBarTest, FindsAButtonByKeyOrByNumberFromOne) {
    EXPECT_EQ(&bar.button(Variant("edit")), &second);
    EXPECT_EQ(&bar.button(Variant(1)), &first);
    const std::vector<Variant> number{2};
    EXPECT_EQ(bar.get("Buttons", number).asObject()->get("Key"), Variant("Edit"));
    for (const Variant& index : {Variant(0), Variant(3), Variant("Copy")}) {
        EXPECT_EQ(errorNumber([&] { (void)bar.button(index); }), errBadIndex);
    }
}

TEST_F(ToolBarTest, ClicksOnlyEnabledButtons) {
    std::string clicked;
    bar.buttonClickEvent.connect([&](ToolButton& button) { clicked += button.key() + ";"; });
    bar.click(first);
    second.setEnabled(false);
    bar.click(second);
    const std::vector<Variant> key{"New"};
    bar.get("Click", key);
    EXPECT_EQ(clicked, "New;New;");
}

TEST_F(ToolBarTest, ReportsButtonsThatAreAdded) {
    ChangeRecorder properties(bar);
    bar.addButton("Delete", {});
    EXPECT_EQ(properties.take(), Names{"Buttons"});
    EXPECT_EQ(bar.get("ButtonCount"), Variant(3));
}

TEST_F(ToolBarTest, AButtonReportsItsChanges) {
    Counter<> changes(first.changed);
    first.setToolTipText("Neu");
    first.setToolTipText("Neu");
    first.setEnabled(false);
    EXPECT_EQ(changes.take(), 2);
}

}  // namespace
}  // namespace hx::forms
