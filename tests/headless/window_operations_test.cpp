// SPDX-License-Identifier: MIT
#include "adapters/headless/window_operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "support/error_of.h"
#include "support/memory_provider.h"
#include "support/table_walker.h"
#include "test_form.h"

namespace hx::headless {
namespace {

namespace window = host::window;
using ::testing::ElementsAre;

class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        form->move(150, 300, 6000, 3000);
        form->show();
        handle = form->handle();
    }

    support::MemoryProvider database;
    Host host{database};
    WindowOperations& windows = host.windows;
    std::shared_ptr<TestForm> form = std::make_shared<TestForm>(host.screen);
    forms::WindowHandle handle = 0;
    forms::WindowHandle studio = host.explorer.hostWindow();
};

TEST_F(WindowTest, KeepsTheStyleOfAWindow) {
    EXPECT_EQ(windows.style(handle), 0U);
    windows.setStyle(handle, window::popup | window::border | window::sysMenu);
    EXPECT_EQ(windows.style(handle), 0x80880000U);
    EXPECT_EQ(windows.style(studio), 0U);
}

TEST_F(WindowTest, PlacesAWindowIntoAnotherAndTakesItOutHidden) {
    EXPECT_EQ(windows.parent(handle), 0);
    windows.setParent(handle, studio);
    EXPECT_EQ(windows.parent(handle), studio);
    EXPECT_TRUE(windows.isShown(handle));
    windows.setParent(handle, -1);
    EXPECT_EQ(windows.parent(handle), 0);
    EXPECT_FALSE(windows.isShown(handle));
    windows.setParent(handle, studio);
    EXPECT_TRUE(windows.isShown(handle));
    windows.setParent(handle, 0);
    EXPECT_EQ(windows.parent(handle), 0);
}

TEST_F(WindowTest, RefusesAParentThatIsNotThereOrLiesBelow) {
    EXPECT_EQ(support::errorNumber([&] { windows.setParent(handle, 4711); }), WindowOperations::errInvalidWindow);
    windows.setParent(handle, studio);
    EXPECT_EQ(support::errorNumber([&] { windows.setParent(studio, handle); }), WindowOperations::errInvalidWindow);
    EXPECT_EQ(windows.parent(handle), studio);
}

TEST_F(WindowTest, FailsForAHandleWithoutAWindow) {
    const auto invalid = WindowOperations::errInvalidWindow;
    EXPECT_EQ(invalid, automation::hresult(0x80070578));
    form->unload(forms::UnloadMode::byCode);
    for (const forms::WindowHandle gone : {handle, 0, -1}) {
        EXPECT_EQ(support::errorNumber([&] { (void)windows.style(gone); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { windows.setStyle(gone, 1); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { windows.setParent(gone, studio); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { (void)windows.rect(gone); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { (void)windows.procedure(gone); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { windows.sendMessage(gone, 6, 1); }), invalid);
        EXPECT_EQ(support::errorNumber([&] { (void)windows.embeddingObject(gone); }), invalid);
    }
}

TEST_F(WindowTest, GivesTheSameNumberForTheSameMessageName) {
    const auto number = windows.registerMessage("HX_EDITORS");
    EXPECT_GE(number, 0xC000U);
    EXPECT_EQ(windows.registerMessage("hx_editors"), number);
    EXPECT_NE(windows.registerMessage("OTHER"), number);
}

TEST_F(WindowTest, SendsMessagesThroughTheInstalledProcedure) {
    std::vector<std::uint32_t> seen;
    window::ProcedureAddress previous = 0;
    previous = windows.install(handle, [&](forms::WindowHandle h, std::uint32_t m, std::uint32_t w, std::int32_t l) {
        EXPECT_EQ(h, handle);
        EXPECT_EQ(l, 9);
        seen.push_back(m);
        windows.call(previous, h, m, w, l);
        return 77;
    });
    EXPECT_NE(previous, 0);
    EXPECT_NE(windows.procedure(handle), previous);
    std::vector<bool> activations;
    form->activateEvent.connect([&](bool active) { activations.push_back(active); });
    EXPECT_EQ(windows.sendMessage(handle, window::activateMessage, window::active, 9), 77);
    EXPECT_EQ(windows.sendMessage(handle, 0xC000, 0, 9), 77);
    EXPECT_THAT(seen, ElementsAre(6U, 0xC000U));
    EXPECT_THAT(activations, ElementsAre(true)) << "the form's own procedure still hears of its activation";

    windows.restore(handle, previous);
    EXPECT_EQ(windows.procedure(handle), previous);
    EXPECT_EQ(windows.sendMessage(handle, 0xC000, 0, 9), 0);
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(WindowTest, LetsAProcedureTakeItselfAway) {
    window::ProcedureAddress previous = 0;
    previous = windows.install(handle, [&](forms::WindowHandle h, std::uint32_t, std::uint32_t, std::int32_t) {
        windows.restore(h, previous);
        return 5;
    });
    EXPECT_EQ(windows.sendMessage(handle, 1, 0), 5);
    EXPECT_EQ(windows.sendMessage(handle, 1, 0), 0);
}

TEST_F(WindowTest, RefusesAProcedureThatIsNotThere) {
    EXPECT_EQ(support::errorNumber([&] { windows.restore(handle, 4711); }), WindowOperations::errInvalidWindow);
    EXPECT_EQ(support::errorNumber([&] { windows.call(0, handle, 1, 0, 0); }), WindowOperations::errInvalidWindow);
}

TEST_F(WindowTest, TellsTheWindowBeforeAndTheNewOneOfAnActivation) {
    const auto other = std::make_shared<TestForm>(host.screen);
    other->show();
    std::vector<std::string> heard;
    form->activateEvent.connect([&](bool active) { heard.push_back(active ? "first on" : "first off"); });
    other->activateEvent.connect([&](bool active) { heard.push_back(active ? "second on" : "second off"); });
    windows.activate(handle);
    windows.activate(handle);
    windows.activate(other->handle());
    windows.activate(0);
    EXPECT_THAT(heard, ElementsAre("first on", "first off", "second on", "second off"));
    EXPECT_EQ(windows.active(), 0);
}

TEST_F(WindowTest, MeasuresAWindowInPixelsOfTheScreen) {
    const window::Rect alone = windows.rect(handle);
    EXPECT_EQ(alone.left, 10);
    EXPECT_EQ(alone.top, 20);
    EXPECT_EQ(alone.right, 410);
    EXPECT_EQ(alone.bottom, 220);
    windows.setParent(handle, studio);
    const window::Rect outer = windows.rect(studio);
    EXPECT_EQ(windows.rect(handle).left, outer.left + 10);
    EXPECT_EQ(windows.rect(handle).top, outer.top + 20);
}

TEST_F(WindowTest, HasAnObjectAroundAnEmbeddedWindowOnly) {
    EXPECT_EQ(windows.embeddingObject(handle), nullptr);
    windows.setParent(handle, studio);
    const automation::ObjectRef edit = windows.embeddingObject(handle);
    EXPECT_EQ(edit->className(), "MDIEdit");
    form->hide();
    edit->get("Show");
    EXPECT_TRUE(form->visible());

    windows.setEmbeddingClass("Window");
    const automation::ObjectRef object = windows.embeddingObject(handle);
    EXPECT_EQ(object->className(), "Window");
    EXPECT_EQ(support::walkTables(*object), 1);
    EXPECT_EQ(support::walkTables(*edit), 1);
    EXPECT_EQ(object->get("Visible"), automation::Variant(true));
    object->set("Visible", automation::Variant(false));
    EXPECT_FALSE(form->visible());
    object->set("Visible", automation::Variant(true));
    EXPECT_TRUE(form->visible());
    form->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(object->get("Visible"), automation::Variant(false));
}

}  // namespace
}  // namespace hx::headless
