// SPDX-License-Identifier: MIT
#include "forms/layout.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "fake_screen.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/tab_strip.h"
#include "forms/text_box.h"

namespace hx::forms {
namespace {

class Dialog : public Form {
  public:
    explicit Dialog(Screen& screen) : Form("FDialog", screen) {}
    using Form::addButtons;
    using Form::addRow;

    std::shared_ptr<TabStrip> tab = add<TabStrip>("tab", 2);
    std::shared_ptr<Frame> frame = add<Frame>("fraValues");
    std::shared_ptr<Label> label = add<Label>("lblName");
    std::shared_ptr<TextBox> field = add<TextBox>("txtName");
    std::shared_ptr<CommandButton> choose = add<CommandButton>("cmdChoose");
    std::shared_ptr<CommandButton> ok = add<CommandButton>("cmdOk");
    std::shared_ptr<CommandButton> help = add<CommandButton>("cmdHelp");
};

class LayoutTest : public testing::Test {
  protected:
    FakeScreen screen;
    std::shared_ptr<Dialog> dialog = std::make_shared<Dialog>(screen);
};

TEST_F(LayoutTest, IsEmptyUntilARowIsAdded) {
    EXPECT_TRUE(dialog->layout().empty());
    dialog->addRow({.field = dialog->field.get()});
    EXPECT_FALSE(dialog->layout().empty());
}

TEST_F(LayoutTest, IsNotEmptyWithButtonsAlone) {
    dialog->addButtons({}, dialog->help.get());
    EXPECT_FALSE(dialog->layout().empty());
}

TEST_F(LayoutTest, KeepsTheRowsInTheirOrder) {
    dialog->addRow({.field = dialog->tab.get(), .grows = true});
    dialog->addRow({.container = &dialog->tab->page(1),
                    .label = dialog->label.get(),
                    .field = dialog->field.get(),
                    .button = dialog->choose.get()});
    const auto& rows = dialog->layout().rows;
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].field, dialog->tab.get());
    EXPECT_TRUE(rows[0].grows);
    EXPECT_EQ(rows[1].label, dialog->label.get());
    EXPECT_EQ(rows[1].button, dialog->choose.get());
    EXPECT_FALSE(rows[1].grows);
}

TEST_F(LayoutTest, PutsTheControlsOfARowIntoItsContainer) {
    dialog->addRow({.container = &dialog->tab->page(1), .field = dialog->frame.get()});
    dialog->addRow({.container = dialog->frame.get(), .label = dialog->label.get(), .field = dialog->field.get()});
    EXPECT_EQ(dialog->frame->container(), &dialog->tab->page(1));
    EXPECT_EQ(dialog->label->container(), dialog->frame.get());
    EXPECT_EQ(dialog->field->container(), dialog->frame.get());
}

TEST_F(LayoutTest, KeepsTheButtonsAtTheRightAndTheHelpAtTheLeftApart) {
    dialog->addButtons({dialog->ok.get(), dialog->choose.get()}, dialog->help.get());
    EXPECT_EQ(dialog->layout().buttons, (std::vector<CommandButton*>{dialog->ok.get(), dialog->choose.get()}));
    EXPECT_EQ(dialog->layout().help, dialog->help.get());
}

TEST_F(LayoutTest, RefusesAControlOfAnotherForm) {
    const auto other = std::make_shared<Dialog>(screen);
    EXPECT_THROW(dialog->addRow({.field = other->field.get()}), std::invalid_argument);
    EXPECT_THROW(dialog->addRow({.container = other->frame.get(), .field = dialog->field.get()}),
                 std::invalid_argument);
    EXPECT_THROW(dialog->addRow({.container = &other->tab->page(0), .field = dialog->field.get()}),
                 std::invalid_argument);
    EXPECT_THROW(dialog->addButtons({other->ok.get()}), std::invalid_argument);
    EXPECT_TRUE(dialog->layout().empty());
}

TEST_F(LayoutTest, RefusesAControlThatStandsInARowAlready) {
    dialog->addRow({.field = dialog->choose.get()});
    EXPECT_THROW(dialog->addRow({.button = dialog->choose.get()}), std::invalid_argument);
    EXPECT_THROW(dialog->addButtons({dialog->ok.get()}, dialog->choose.get()), std::invalid_argument);
    EXPECT_EQ(dialog->layout().rows.size(), 1U);
    EXPECT_TRUE(dialog->layout().buttons.empty());
}

}  // namespace
}  // namespace hx::forms
