// SPDX-License-Identifier: MIT

// Command buttons, check boxes and option buttons.
#include <gtest/gtest.h>

#include "fake_screen.h"
#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/frame.h"
#include "forms/option_button.h"
#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errOverflow;
using automation::Variant;
using support::errorNumber;

TEST(CommandButton, IsClickedOnlyWhileEnabled) {
    CommandButton button("cmdOk");
    Counter<> clicks(button.clickEvent);
    button.click();
    button.setEnabled(false);
    button.click();
    EXPECT_EQ(clicks.take(), 1);
    button.setEnabled(true);
    button.get("Click");
    EXPECT_EQ(clicks.take(), 1);
}

TEST(CheckBox, IsToggledByAClick) {
    CheckBox box("chkEnabled");
    Counter<> clicks(box.clickEvent);
    box.click();
    EXPECT_EQ(box.value(), CheckState::checked);
    box.get("Click");
    EXPECT_EQ(box.value(), CheckState::unchecked);
    box.setValue(CheckState::greyed);
    box.click();
    EXPECT_EQ(box.value(), CheckState::unchecked);
    EXPECT_EQ(clicks.take(), 4);
    box.setEnabled(false);
    box.click();
    EXPECT_EQ(box.value(), CheckState::unchecked);
    EXPECT_EQ(clicks.take(), 0);
}

TEST(CheckBox, RaisesAClickForEveryNewValue) {
    CheckBox box("chkEnabled");
    Counter<> clicks(box.clickEvent);
    box.setValue(CheckState::checked);
    box.setValue(CheckState::checked);
    EXPECT_EQ(clicks.take(), 1);
    box.set("Value", Variant(0));
    EXPECT_EQ(clicks.take(), 1);
}

TEST(CheckBox, KnowsNoOtherValuesThanThree) {
    CheckBox box("chkEnabled");
    for (const std::int32_t value : {-1, 3, 65536, 65537}) {
        EXPECT_EQ(errorNumber([&] { box.set("Value", Variant(value)); }), errOverflow) << value;
    }
    EXPECT_EQ(box.value(), CheckState::unchecked);
}

class OptionsForm : public Form {
  public:
    explicit OptionsForm(Screen& screen) : Form("FOptions", screen) {
        for (const auto& button : {inFrame0, inFrame1}) button->setContainer(frame.get());
    }
    std::shared_ptr<Frame> frame = add<Frame>("fraOne");
    std::shared_ptr<OptionButton> inFrame0 = add<OptionButton>("optA");
    std::shared_ptr<OptionButton> inFrame1 = add<OptionButton>("optB");
    std::shared_ptr<OptionButton> outside0 = add<OptionButton>("optC");
    std::shared_ptr<OptionButton> outside1 = add<OptionButton>("optD");
};

class OptionButtonTest : public testing::Test {
  protected:
    FakeScreen screen;
    OptionsForm form{screen};
};

TEST_F(OptionButtonTest, OneOfEachContainerIsChosen) {
    form.inFrame0->click();
    form.outside0->get("Click");
    EXPECT_TRUE(form.inFrame0->value());
    EXPECT_TRUE(form.outside0->value());
    form.inFrame1->setValue(true);
    EXPECT_FALSE(form.inFrame0->value());
    EXPECT_TRUE(form.outside0->value());
}

TEST_F(OptionButtonTest, TheFormItselfIsAContainerToo) {
    form.outside0->setContainer(&form);
    form.outside0->setValue(true);
    form.outside1->setValue(true);
    EXPECT_FALSE(form.outside0->value());
}

TEST_F(OptionButtonTest, RaisesAClickWhenItIsChosenAndNoneWhenItIsNot) {
    Counter<> first(form.inFrame0->clickEvent), second(form.inFrame1->clickEvent);
    form.inFrame0->setValue(true);
    form.inFrame0->setValue(true);
    EXPECT_EQ(first.take(), 1);
    form.inFrame1->setValue(true);
    EXPECT_EQ(first.take(), 0);
    EXPECT_EQ(second.take(), 1);
    form.inFrame1->setValue(false);
    EXPECT_EQ(second.take(), 0);
}

TEST_F(OptionButtonTest, TheOthersAreClearedBeforeTheClickIsHeard) {
    form.inFrame0->setValue(true);
    bool cleared = false;
    form.inFrame1->clickEvent.connect([&] { cleared = !form.inFrame0->value(); });
    form.inFrame1->click();
    EXPECT_TRUE(cleared);
}

TEST_F(OptionButtonTest, IsNotChosenByAClickWhileDisabled) {
    form.inFrame0->setEnabled(false);
    form.inFrame0->click();
    EXPECT_FALSE(form.inFrame0->value());
}

TEST_F(OptionButtonTest, StandsAloneWithoutAForm) {
    OptionButton button("optLone");
    button.set("Value", Variant(true));
    EXPECT_EQ(button.get("Value"), Variant(true));
}

}  // namespace
}  // namespace hx::forms
