// SPDX-License-Identifier: MIT
#include "forms/control.h"

#include <gtest/gtest.h>

#include "fake_screen.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/text_box.h"
#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::Variant;

class PairForm : public Form {
  public:
    explicit PairForm(Screen& screen) : Form("FPair", screen) {}
    std::shared_ptr<Frame> frame = add<Frame>("fraBoth");
    std::shared_ptr<TextBox> first = add<TextBox>("txtFirst");
    std::shared_ptr<TextBox> second = add<TextBox>("txtSecond");
};

class ControlTest : public testing::Test {
  protected:
    FakeScreen screen;
    std::shared_ptr<PairForm> form = std::make_shared<PairForm>(screen);
};

TEST_F(ControlTest, ReportsEachNewValueOfAPropertyOnce) {
    Label label("lblName");
    ChangeRecorder changes(label);
    label.setLeft(120);
    label.setLeft(120);
    label.setTag("C603");
    label.setToolTipText("Tip");
    label.setHelpContextId(7);
    label.setTabIndex(3);
    label.setCaption("Name");
    EXPECT_EQ(changes.take(), (Names{"Left", "Tag", "ToolTipText", "HelpContextID", "TabIndex", "Caption"}));
}

TEST_F(ControlTest, MovesInOneStep) {
    Label label("lblName");
    ChangeRecorder changes(label);
    label.move(1, 2, 3, 4);
    EXPECT_EQ(changes.take(), Names{"Bounds"});
    EXPECT_EQ(label.left(), 1);
    EXPECT_EQ(label.top(), 2);
    EXPECT_EQ(label.width(), 3);
    EXPECT_EQ(label.height(), 4);
    label.move(1, 2, 3, 4);
    EXPECT_EQ(changes.take(), Names{});
}

TEST_F(ControlTest, ReportsChangesInsideItsFont) {
    Label label("lblName");
    ChangeRecorder changes(label);
    label.font().setSize(12);
    EXPECT_EQ(changes.take(), Names{"Font"});
}

TEST_F(ControlTest, HasTheKeyboardAtOnceWhenNoViewShowsIt) {
    Counter<bool> focus(form->first->focusEvent);
    form->first->setFocus();
    EXPECT_TRUE(form->first->hasFocus());
    form->first->get("SetFocus");
    EXPECT_EQ(focus.take(), 1);
    form->second->setFocus();
    EXPECT_TRUE(form->second->hasFocus());
    EXPECT_FALSE(form->first->hasFocus());
    EXPECT_EQ(focus.take(), 1);
}

TEST_F(ControlTest, WaitsForTheViewToGetTheKeyboard) {
    ChangeRecorder changes(*form->first);
    form->first->setFocus();
    EXPECT_TRUE(form->first->hasFocus()) << "nobody who shows the control has heard of it";
    form->first->focusChanged(false);
    Counter<> view(form->first->focusRequestEvent);
    form->first->setFocus();
    EXPECT_EQ(view.take(), 1);
    EXPECT_TRUE(changes.take().empty()) << "no property has changed";
    EXPECT_FALSE(form->first->hasFocus());
    form->first->focusChanged(true);
    EXPECT_TRUE(form->first->hasFocus());
}

TEST_F(ControlTest, LiesInItsContainerOrInTheForm) {
    form->first->setContainer(form->frame.get());
    EXPECT_EQ(form->first->get("Container").asObject().get(), form->frame.get());
    EXPECT_EQ(form->frame->get("container").asObject().get(), form.get());
    EXPECT_EQ(form->get("Container").asObject(), nullptr);
}

TEST_F(ControlTest, OutlivesItsFormWithoutReachingForIt) {
    const auto control = form->first;
    control->setContainer(form->frame.get());
    form.reset();
    EXPECT_EQ(control->form(), nullptr);
    EXPECT_EQ(control->get("Container").asObject(), nullptr);
    control->setFocus();
    EXPECT_TRUE(control->hasFocus());
}

TEST_F(ControlTest, HasAnIndexOnlyInAControlArray) {
    EXPECT_EQ(form->first->get("Index"), Variant());
    form->first->setIndex(4);
    EXPECT_EQ(form->first->get("Index"), Variant(std::int16_t{4}));
}

TEST_F(ControlTest, TakesTheUsersInputByName) {
    std::string seen;
    form->first->keyDownEvent.connect([&](KeyEvent& key) {
        seen += "down" + std::to_string(key.code) + "," + std::to_string(key.shift) + ";";
        if (key.code == key::f9) key.swallow();
    });
    form->first->keyUpEvent.connect([&](KeyEvent& key) { seen += "up" + std::to_string(key.code) + ";"; });
    form->first->keyPressEvent.connect(
        [&](KeyPress& press) { seen += "char" + std::to_string(press.character) + ";"; });
    form->first->mouseDownEvent.connect([&](const MouseEvent& mouse) {
        seen += "press" + std::to_string(mouse.button) + "," + std::to_string(mouse.shift) + "," +
                std::to_string(static_cast<int>(mouse.x)) + "," + std::to_string(static_cast<int>(mouse.y)) + ";";
    });
    form->first->doubleClickEvent.connect([&] { seen += "double;"; });
    const auto call = [&](const char* name, std::vector<Variant> args) { return form->first->get(name, args); };
    EXPECT_EQ(call("KeyDown", {40, 1}), Variant(false));
    EXPECT_EQ(call("KeyDown", {120, 0}), Variant(true));
    call("KeyUp", {40, 0});
    call("KeyPress", {32});
    call("MouseDown", {1, 0, 30, 45});
    call("MouseMove", {1, 0, 30, 45});
    call("MouseUp", {1, 0, 30, 45});
    call("DblClick", {});
    EXPECT_EQ(seen, "down40,1;down120,0;up40;char32;press1,0,30,45;double;");
    EXPECT_EQ(support::errorNumber([&] { call("KeyDown", {40}); }), automation::errBadParamCount);
}

TEST_F(ControlTest, IsClickedByNameUnlessItIsDisabled) {
    std::string seen;
    form->first->mouseDownEvent.connect(
        [&](const MouseEvent& mouse) { seen += "press" + std::to_string(mouse.button) + ";"; });
    form->first->mouseUpEvent.connect(
        [&](const MouseEvent& mouse) { seen += "release" + std::to_string(mouse.button) + ";"; });
    form->first->get("Click");
    form->first->setEnabled(false);
    form->first->get("Click");
    EXPECT_EQ(seen, "press1;release1;");
}

TEST_F(ControlTest, KeysByNamePassTheFormFirstWhenItAsksForThem) {
    std::string seen;
    form->keyDownEvent.connect([&](KeyEvent& key) {
        seen += "form;";
        if (key.code == key::enter) key.swallow();
    });
    form->first->keyDownEvent.connect([&](KeyEvent&) { seen += "field;"; });
    const auto press = [&](std::int16_t code) {
        const std::vector<Variant> args{code, std::int16_t{0}};
        return form->first->get("KeyDown", args);
    };
    press(key::enter);
    EXPECT_EQ(seen, "field;");
    seen.clear();
    form->setKeyPreview(true);
    EXPECT_EQ(press(key::enter), Variant(true));
    EXPECT_EQ(press(key::tab), Variant(false));
    EXPECT_EQ(seen, "form;form;field;");
}

}  // namespace
}  // namespace hx::forms
