// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "support/memory_provider.h"
#include "test_form.h"

namespace hx::headless {
namespace {

class TypingTest : public ::testing::Test {
  protected:
    void SetUp() override {
        form->show();
        form->keyDownEvent.connect([this](forms::KeyEvent& event) {
            seen += "form ";
            if (swallow) event.swallow();
        });
        form->txtName->keyDownEvent.connect([this](forms::KeyEvent&) { seen += "field "; });
        form->txtName->focusChanged(true);
    }

    support::MemoryProvider database;
    Host host{database};
    std::shared_ptr<TestForm> form = std::make_shared<TestForm>(host.screen);
    std::string seen;
    bool swallow = false;
};

TEST_F(TypingTest, ReachesTheControlWithTheKeyboard) {
    host.screen.sendKeys(*form, "{F1}");
    EXPECT_EQ(seen, "field ");
    ASSERT_EQ(host.record.sentKeys.size(), 1U);
    EXPECT_EQ(host.record.sentKeys[0].form, "FTest");
    EXPECT_EQ(host.record.sentKeys[0].keys, "{F1}");
}

TEST_F(TypingTest, ReachesAFormThatPreviewsKeysFirst) {
    form->setKeyPreview(true);
    host.screen.sendKeys(*form, "{F1}");
    EXPECT_EQ(seen, "form field ");
    swallow = true;
    host.screen.sendKeys(*form, "{F1}");
    EXPECT_EQ(seen, "form field form ");
}

TEST_F(TypingTest, ReachesTheFormWhenNoControlHasTheKeyboard) {
    form->txtName->focusChanged(false);
    host.screen.sendKeys(*form, "{F1}");
    EXPECT_EQ(seen, "form ");
}

TEST_F(TypingTest, PressesTheDefaultButtonByEnter) {
    host.screen.sendKeys(*form, "{ENTER}");
    EXPECT_TRUE(form->accepted);
    EXPECT_FALSE(form->visible());
}

TEST_F(TypingTest, PressesTheCancelButtonByEsc) {
    host.screen.sendKeys(*form, "{ESC}");
    EXPECT_FALSE(form->accepted);
    EXPECT_FALSE(form->visible());
}

TEST_F(TypingTest, PressesNoButtonByAKeyThatWasSwallowed) {
    form->setKeyPreview(true);
    swallow = true;
    host.screen.sendKeys(*form, "{ENTER}");
    EXPECT_TRUE(form->visible());
    form->setKeyPreview(false);
    form->txtName->keyPressEvent.connect([](forms::KeyPress& press) { press.swallow(); });
    host.screen.sendKeys(*form, "{ENTER}");
    EXPECT_TRUE(form->visible());
}

TEST_F(TypingTest, PressesNoDisabledButton) {
    form->cmdOk->setEnabled(false);
    host.screen.sendKeys(*form, "{ENTER}");
    EXPECT_TRUE(form->visible());
    EXPECT_FALSE(form->accepted);
}

}  // namespace
}  // namespace hx::headless
