// SPDX-License-Identifier: MIT

// Every row of every table: what all tables promise.
#include <gtest/gtest.h>

#include "forms/bar.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/picture_box.h"
#include "forms/status_bar.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"
#include "forms/tool_bar.h"
#include "grid_fixture.h"

namespace hx::forms {
namespace {

using automation::Variant;
using support::Samples;
using support::walkTables;

constexpr int controlRows = 25;

TEST(MemberTables, OfPlainControlsKeepTheirPromises) {
    EXPECT_EQ(walkTables(*std::make_shared<Label>("lblName")), controlRows + 1);
    EXPECT_EQ(walkTables(*std::make_shared<Frame>("fraName")), controlRows + 1);
    EXPECT_EQ(walkTables(*std::make_shared<PictureBox>("pct")), controlRows);
}

TEST(MemberTables, OfButtonsKeepTheirPromises) {
    EXPECT_EQ(walkTables(*std::make_shared<CommandButton>("cmdOk")), controlRows + 3);
    EXPECT_EQ(walkTables(*std::make_shared<CheckBox>("chkEnabled")), controlRows + 2);
    EXPECT_EQ(walkTables(*std::make_shared<OptionButton>("optRelative")), controlRows + 2);
}

TEST(MemberTables, OfFieldsKeepTheirPromises) {
    const auto text = std::make_shared<TextBox>("txtName");
    text->setText("abc");
    EXPECT_EQ(walkTables(*text, {{"BackColor", Variant(15)}}), controlRows + 6);
    for (const auto style : {ComboBox::Style::dropDownCombo, ComboBox::Style::dropDownList}) {
        const auto combo = std::make_shared<ComboBox>("cbo", style);
        combo->addItem("A");
        combo->addItem("B");
        EXPECT_EQ(walkTables(*combo, {{"Text", Variant("B")}}), controlRows + 9);
    }
}

TEST(MemberTables, OfTabsAndBarsKeepTheirPromises) {
    EXPECT_EQ(walkTables(*std::make_shared<TabStrip>("tab", 2)), controlRows + 4);
    EXPECT_EQ(walkTables(*std::make_shared<StatusBar>("sb", 3)), controlRows + 2);
    EXPECT_EQ(walkTables(*std::make_shared<ToolBar>("tbrfunc")), controlRows + 2);
    EXPECT_EQ(walkTables(*std::make_shared<Panel>()), 1);
    EXPECT_EQ(walkTables(*std::make_shared<ToolButton>("New", Picture())), 3);
}

TEST(MemberTables, OfTheBarKeepTheirPromises) {
    const auto bar = std::make_shared<Bar>("abr");
    Band& band = bar->addBand("mnuMain");
    bar->setMainBand("mnuMain");
    EXPECT_EQ(walkTables(*bar), controlRows + 6);
    EXPECT_EQ(walkTables(band), 4);
    EXPECT_EQ(walkTables(band.add("mnuRecipes", ToolKind::menu)), 9);
}

TEST(MemberTables, OfAFormKeepTheirPromises) {
    FakeScreen screen;
    EXPECT_EQ(walkTables(*std::make_shared<Form>("F", screen)), controlRows + 10);
}

TEST(MemberTables, OfAFontKeepTheirPromises) { EXPECT_EQ(walkTables(*std::make_shared<Font>()), 8); }

using GridMemberTables = GridTest;

TEST_F(GridMemberTables, KeepTheirPromises) {
    EXPECT_EQ(walkTables(grid), controlRows + 29);
    EXPECT_EQ(walkTables(*grid.columns()[0]), 8);
    EXPECT_EQ(walkTables(grid.split(0)), 1);
    EXPECT_EQ(walkTables(grid.selectedRows()), 5);
}

}  // namespace
}  // namespace hx::forms
