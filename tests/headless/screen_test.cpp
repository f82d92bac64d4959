// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "support/memory_provider.h"
#include "test_form.h"

namespace hx::headless {
namespace {

namespace message = forms::message;
using message::Answer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ScreenTest : public ::testing::Test {
  protected:
    Answer ask(std::int32_t style) { return host.screen.messageBox("Really?", style, "Question"); }

    support::MemoryProvider database;
    Host host{database};
    std::shared_ptr<TestForm> form = std::make_shared<TestForm>(host.screen);
};

TEST_F(ScreenTest, AnswersAMessageBoxByItsDefaultButton) {
    EXPECT_EQ(ask(message::ok | message::critical), Answer::ok);
    EXPECT_EQ(ask(message::okCancel), Answer::ok);
    EXPECT_EQ(ask(message::okCancel | message::defaultButton2), Answer::cancel);
    EXPECT_EQ(ask(message::yesNo | message::question), Answer::yes);
    EXPECT_EQ(ask(message::yesNo | message::question | message::defaultButton2), Answer::no);
    EXPECT_EQ(ask(message::yesNoCancel), Answer::yes);
    EXPECT_EQ(host.record.messages.size(), 6U);
}

TEST_F(ScreenTest, RecordsTextTitleButtonsAndAnswerOfAMessageBox) {
    host.script.onMessage = [](const forms::ShownMessage& box) {
        EXPECT_EQ(box.defaultButton, Answer::no);
        return Answer::yes;
    };
    constexpr std::int32_t style = message::yesNo | message::question | message::defaultButton2;
    EXPECT_EQ(ask(style), Answer::yes);
    ASSERT_EQ(host.record.messages.size(), 1U);
    const forms::ShownMessage& box = host.record.messages[0];
    EXPECT_EQ(box.text, "Really?");
    EXPECT_EQ(box.title, "Question");
    EXPECT_EQ(box.style, style);
    EXPECT_THAT(box.buttons, ElementsAre(Answer::yes, Answer::no));
    EXPECT_EQ(box.answer, Answer::yes);
}

TEST_F(ScreenTest, GivesABoxWithoutATitleTheComponentsName) {
    host.screen.messageBox("x", message::ok, "");
    EXPECT_EQ(host.record.messages.at(0).title, "HXRecipeEditor");
}

TEST_F(ScreenTest, RefusesAnAnswerThatTheBoxDoesNotOffer) {
    host.script.onMessage = [](const forms::ShownMessage&) { return Answer::cancel; };
    try {
        ask(message::yesNo);
        FAIL() << "the answer was taken";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errBadIndex);
        EXPECT_EQ(error.description(), "The message box \"Really?\" has no button \"cancel\"");
    }
    EXPECT_EQ(host.record.messages.size(), 1U);
}

TEST_F(ScreenTest, ClosesAModalFormByItsFrameWithoutAScript) {
    form->showModal(42);
    EXPECT_FALSE(form->loaded());
    EXPECT_FALSE(form->accepted);
    EXPECT_EQ(form->lastMode, forms::UnloadMode::byUser);
    ASSERT_EQ(host.record.modals.size(), 1U);
    EXPECT_EQ(host.record.modals[0].form, "FTest");
    EXPECT_EQ(host.record.modals[0].caption, "Test");
    EXPECT_EQ(host.record.modals[0].owner, 42);
    EXPECT_FALSE(host.record.modals[0].scripted);
    EXPECT_TRUE(host.record.modals[0].closedByFrame);
    EXPECT_EQ(host.screen.modalForm(), nullptr);
}

TEST_F(ScreenTest, LetsTheScriptWorkOnAModalForm) {
    host.script.onModal["ftest"] = [this](forms::Form& shown) {
        EXPECT_TRUE(shown.visible());
        EXPECT_EQ(host.screen.modalForm(), &shown);
        shown.get("txtName").asObject()->set("Text", automation::Variant("A"));
        form->cmdOk->click();
    };
    form->showModal(0);
    EXPECT_TRUE(form->accepted);
    EXPECT_EQ(form->txtName->text(), "A");
    EXPECT_TRUE(form->loaded()) << "a hidden dialog can still be read";
    EXPECT_TRUE(host.record.modals.at(0).scripted);
    EXPECT_FALSE(host.record.modals.at(0).closedByFrame);
}

TEST_F(ScreenTest, ClosesAModalFormThatTheScriptLeftOpen) {
    host.script.onModal["FTest"] = [](forms::Form& shown) { shown.setCaption("seen"); };
    form->showModal(0);
    EXPECT_EQ(form->caption(), "seen");
    EXPECT_FALSE(form->loaded());
    EXPECT_TRUE(host.record.modals.at(0).closedByFrame);
}

TEST_F(ScreenTest, HidesAModalFormThatRefusesToClose) {
    form->refusesToClose = true;
    form->showModal(0);
    EXPECT_TRUE(form->loaded());
    EXPECT_FALSE(form->visible());
}

TEST_F(ScreenTest, PassesOnWhatAScriptThrowsWithTheFormClosed) {
    host.script.onModal["FTest"] = [](forms::Form&) { throw std::runtime_error("macro"); };
    EXPECT_THROW(form->showModal(0), std::runtime_error);
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(host.screen.modalForm(), nullptr);
}

TEST_F(ScreenTest, ShowsAModalFormOverAnother) {
    const auto inner = std::make_shared<TestForm>(host.screen);
    int depth = 0;
    host.script.onModal["FTest"] = [&](forms::Form& shown) {
        if (++depth == 1) {
            inner->showModal(shown.handle());
            EXPECT_EQ(host.screen.modalForm(), &shown);
        }
    };
    form->showModal(0);
    EXPECT_EQ(depth, 2);
    EXPECT_EQ(host.record.modals.size(), 2U);
    EXPECT_TRUE(host.record.modals[0].closedByFrame);
}

TEST_F(ScreenTest, ReportsTheRoomInsideAFormAndItsBar) {
    form->setWidth(6000);
    form->setHeight(3000);
    form->load();
    EXPECT_EQ(form->scaleWidth(), 6000);
    EXPECT_EQ(form->scaleHeight(), 3000);
    EXPECT_EQ(form->abr->clientAreaWidth(), 6000);
    EXPECT_EQ(form->abr->clientAreaHeight(), 3000 - FormWindow::menuBarHeight);
    EXPECT_EQ(form->abr->mainBand().height(), FormWindow::menuBarHeight);

    int resizes = 0;
    form->abr->resizeEvent.connect([&] { ++resizes; });
    form->setWidth(7000);
    EXPECT_EQ(form->abr->clientAreaWidth(), 7000);
    form->setWindowState(forms::WindowState::maximised);
    EXPECT_EQ(form->abr->clientAreaWidth(), Screen::areaWidth);
    form->setWindowState(forms::WindowState::minimised);
    EXPECT_EQ(form->abr->clientAreaWidth(), Screen::areaWidth);
    form->setWindowState(forms::WindowState::normal);
    EXPECT_EQ(form->abr->clientAreaWidth(), 7000);
    EXPECT_EQ(resizes, 3);
}

TEST_F(ScreenTest, RestoresAndActivatesAFormThatIsBroughtToFront) {
    form->show();
    form->setWindowState(forms::WindowState::minimised);
    int activations = 0;
    form->activateEvent.connect([&](bool active) { activations += active ? 1 : 0; });
    form->bringToFront();
    EXPECT_EQ(form->windowState(), forms::WindowState::normal);
    EXPECT_EQ(activations, 1);
    EXPECT_EQ(host.windows.active(), form->handle());
    EXPECT_THAT(host.record.broughtToFront, ElementsAre("FTest"));
}

TEST_F(ScreenTest, LeavesAHiddenFormHiddenThatIsBroughtToFront) {
    form->show();
    form->hide();
    form->bringToFront();
    EXPECT_FALSE(form->visible());
    EXPECT_NE(host.windows.active(), form->handle());
}

TEST_F(ScreenTest, LetsTheScriptChangeAFontOrCancel) {
    forms::Font::Values font;
    EXPECT_FALSE(host.screen.chooseFont(font));
    host.script.onFont = [](forms::Font::Values& values) {
        values.size = 10;
        return values.name == "Arial";
    };
    EXPECT_TRUE(host.screen.chooseFont(font));
    EXPECT_EQ(font.size, 10);
    font = {.name = "Courier"};
    EXPECT_FALSE(host.screen.chooseFont(font));
    EXPECT_EQ(font.size, 8.25) << "a cancelled choice changes nothing";
    ASSERT_EQ(host.record.fonts.size(), 3U);
    EXPECT_EQ(host.record.fonts[1].after.size, 10);
    EXPECT_FALSE(host.record.fonts[2].accepted);
}

TEST_F(ScreenTest, CountsBeepsAndKeepsPointers) {
    host.screen.beep();
    host.screen.beep();
    EXPECT_EQ(host.record.beeps, 2);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
    host.screen.setPointer(forms::Pointer::hourglass);
    EXPECT_EQ(host.screen.pointer(), forms::Pointer::hourglass);
    host.screen.setPointer(forms::Pointer::standard);
    EXPECT_THAT(host.record.pointers, ElementsAre(forms::Pointer::hourglass, forms::Pointer::standard));
    EXPECT_EQ(host.screen.twipsPerPixel(), 15);
}

TEST_F(ScreenTest, EndsTheWindowOfAFormThatGoesAway) {
    form->load();
    const auto handle = form->handle();
    EXPECT_TRUE(host.windows.exists(handle));
    form.reset();
    EXPECT_FALSE(host.windows.exists(handle));
}

}  // namespace
}  // namespace hx::headless
