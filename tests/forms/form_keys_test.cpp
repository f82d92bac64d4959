// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "fake_screen.h"
#include "forms/command_button.h"
#include "forms/text_box.h"

namespace hx::forms {
namespace {

struct Dialog : Form {
    explicit Dialog(Screen& screen) : Form("FTest", screen) {
        ok->setDefault(true);
        cancel->setCancel(true);
    }
    std::shared_ptr<TextBox> field = add<TextBox>("txtName");
    std::shared_ptr<CommandButton> ok = add<CommandButton>("cmdOk");
    std::shared_ptr<CommandButton> cancel = add<CommandButton>("cmdCancel");
};

class FormKeys : public ::testing::Test {
  protected:
    FormKeys() {
        form->load();
        hear(*form, "form");
        hear(*form->field, "field");
    }
    void hear(Control& control, const std::string& name) {
        control.keyDownEvent.connect([this, name](KeyEvent& key) { heard(name + " down ", key); });
        control.keyPressEvent.connect([this, name](KeyPress& key) { heard(name + " press ", key); });
        control.keyUpEvent.connect([this, name](KeyEvent& key) { heard(name + " up ", key); });
    }
    template <class Event>
    void heard(const std::string& what, Event& event) {
        seen += what;
        if (what == swallowing + " ") event.swallow();
        if (what == ending + " ") form->unload(UnloadMode::byCode);
    }
    bool down(Control& at) { return form->keyReported(at, KeyMove::down, {key::c, shift::none}, {'c'}); }

    FakeScreen screen;
    std::shared_ptr<Dialog> form = std::make_shared<Dialog>(screen);
    std::string seen, swallowing, ending;
};

TEST_F(FormKeys, ReachTheControlAlone) {
    EXPECT_FALSE(down(*form->field));
    EXPECT_FALSE(form->keyReported(*form->field, KeyMove::up, {key::c, shift::none}));
    EXPECT_EQ(seen, "field down field press field up ");
}

TEST_F(FormKeys, ReachAFormThatPreviewsThemFirst) {
    form->setKeyPreview(true);
    EXPECT_FALSE(down(*form->field));
    EXPECT_FALSE(form->keyReported(*form->field, KeyMove::up, {key::c, shift::none}));
    EXPECT_EQ(seen, "form down field down form press field press form up field up ");
}

TEST_F(FormKeys, ReachTheFormOnceWhenNoControlHasTheKeyboard) {
    form->setKeyPreview(true);
    EXPECT_FALSE(down(*form));
    EXPECT_EQ(seen, "form down form press ");
}

TEST_F(FormKeys, GoNoFurtherOnceTheyAreSwallowed) {
    form->setKeyPreview(true);
    swallowing = "form down";
    EXPECT_TRUE(down(*form->field));
    EXPECT_EQ(seen, "form down ");
    seen.clear();
    swallowing = "field down";
    EXPECT_TRUE(down(*form->field));
    EXPECT_EQ(seen, "form down field down ");
    seen.clear();
    swallowing = "form press";
    EXPECT_TRUE(down(*form->field));
    EXPECT_EQ(seen, "form down field down form press ");
}

TEST_F(FormKeys, GoNoFurtherOnceTheyHaveEndedTheForm) {
    form->setKeyPreview(true);
    ending = "form down";
    EXPECT_TRUE(down(*form->field));
    EXPECT_EQ(seen, "form down ");
}

TEST_F(FormKeys, OfACharacterAloneArePressedAndNeitherGoDownNorUp) {
    EXPECT_FALSE(form->keyReported(*form->field, KeyMove::down, {}, {0xFC}));
    EXPECT_FALSE(form->keyReported(*form->field, KeyMove::up, {}, {0xFC}));
    EXPECT_EQ(seen, "field press ");
}

TEST_F(FormKeys, EnterPressesTheDefaultAndEscTheCancelButton) {
    EXPECT_EQ(form->buttonOf(key::enter), form->ok.get());
    EXPECT_EQ(form->buttonOf(key::escape), form->cancel.get());
    EXPECT_EQ(form->buttonOf(key::space), nullptr);
}

TEST_F(FormKeys, EnterPressesTheButtonThatHasTheKeyboard) {
    form->cancel->focusChanged(true);
    EXPECT_EQ(form->buttonOf(key::enter), form->cancel.get());
    form->ok->focusChanged(true);
    EXPECT_EQ(form->buttonOf(key::escape), form->cancel.get());
}

TEST_F(FormKeys, PressNoButtonThatIsNotSeen) {
    form->ok->setVisible(false);
    form->cancel->setVisible(false);
    EXPECT_EQ(form->buttonOf(key::enter), nullptr);
    EXPECT_EQ(form->buttonOf(key::escape), nullptr);
}

}  // namespace
}  // namespace hx::forms
