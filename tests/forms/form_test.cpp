// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include <gtest/gtest.h>

#include "fake_screen.h"
#include "forms/command_button.h"
#include "forms/text_box.h"
#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::Variant;
using support::errorNumber;

class SampleForm : public Form {
  public:
    explicit SampleForm(Screen& screen) : Form("FSample", screen) {
        for (std::int16_t i = 0; i < 2; ++i) choices.push_back(add<CommandButton>("cmdChooseItem"));
        choices[0]->setIndex(0);
        choices[1]->setIndex(1);
    }
    std::shared_ptr<TextBox> field = add<TextBox>("txtName");
    std::vector<std::shared_ptr<CommandButton>> choices;
};

class FormTest : public testing::Test {
  protected:
    FakeScreen screen;
    std::shared_ptr<SampleForm> form = std::make_shared<SampleForm>(screen);
};

TEST_F(FormTest, LoadsOnceAndHidden) {
    WindowHandle during = 1;
    int loads = 0;
    form->loadEvent.connect([&] {
        ++loads;
        during = form->handle();
        form->load();
    });
    EXPECT_EQ(form->handle(), 0);
    form->load();
    form->load();
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(during, 0);
    EXPECT_EQ(form->handle(), 101);
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(screen.calls, Names{"create FSample"});
}

TEST_F(FormTest, StaysUnloadedWhenLoadingFails) {
    bool fails = true;
    form->loadEvent.connect([&] {
        if (fails) throw automation::Error(automation::errFail, "no");
    });
    EXPECT_EQ(errorNumber([&] { form->show(); }), automation::errFail);
    EXPECT_FALSE(form->loaded());
    EXPECT_FALSE(form->visible());
    fails = false;
    form->show();
    EXPECT_TRUE(form->loaded());
    EXPECT_TRUE(form->visible());
}

TEST_F(FormTest, IsShownWhenAHandlerShowsItWhileItLoads) {
    form->loadEvent.connect([&] { form->show(); });
    ChangeRecorder changes(*form);
    form->load();
    EXPECT_TRUE(form->visible());
    EXPECT_EQ(changes.take(), (Names{"Visible", "Visible"})) << "once before the window is there and once for it";
}

TEST_F(FormTest, ShowsAndHides) {
    ChangeRecorder changes(*form);
    form->show();
    form->show();
    EXPECT_TRUE(form->loaded());
    form->hide();
    EXPECT_FALSE(form->visible());
    EXPECT_TRUE(form->loaded());
    EXPECT_EQ(changes.take(), (Names{"Visible", "Visible"}));
}

TEST_F(FormTest, UnloadsUnlessAHandlerRefuses) {
    bool refuse = true;
    std::vector<UnloadMode> modes;
    form->queryUnloadEvent.connect([&](bool& cancel, UnloadMode mode) {
        modes.push_back(mode);
        cancel = refuse;
    });
    Counter<> unloads(form->unloadEvent);
    form->show();
    EXPECT_FALSE(form->closeByFrame());
    EXPECT_TRUE(form->loaded());
    EXPECT_TRUE(form->visible());
    EXPECT_EQ(unloads.take(), 0);
    refuse = false;
    EXPECT_TRUE(form->unload(UnloadMode::byCode));
    EXPECT_EQ(unloads.take(), 1);
    EXPECT_EQ(form->handle(), 0);
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(modes, (std::vector{UnloadMode::byUser, UnloadMode::byCode}));
    EXPECT_EQ(screen.calls, (Names{"create FSample", "destroy FSample"}));
}

TEST_F(FormTest, UnloadingWhatIsNotLoadedAsksNobody) {
    Counter<bool&, UnloadMode> questions(form->queryUnloadEvent);
    EXPECT_TRUE(form->unload(UnloadMode::byCode));
    EXPECT_EQ(questions.take(), 0);
}

TEST_F(FormTest, AHandlerThatUnloadsAgainChangesNothing) {
    bool inner = true;
    form->load();
    form->queryUnloadEvent.connect([&](bool&, UnloadMode) { inner = form->unload(UnloadMode::byCode); });
    EXPECT_TRUE(form->unload(UnloadMode::byCode));
    EXPECT_FALSE(inner);
    EXPECT_EQ(screen.calls, (Names{"create FSample", "destroy FSample"}));
}

TEST_F(FormTest, AHandlerMayLetGoOfTheFormWhileItUnloads) {
    form->load();
    form->unloadEvent.connect([&] { form.reset(); });
    EXPECT_TRUE(form->unload(UnloadMode::byCode));
    EXPECT_EQ(screen.calls, (Names{"create FSample", "destroy FSample"}));
}

TEST_F(FormTest, LoadsAgainAfterUnloading) {
    form->load();
    form->unload(UnloadMode::byCode);
    form->load();
    EXPECT_EQ(form->handle(), 102);
}

TEST_F(FormTest, EndsItsWindowWithItself) {
    form->load();
    form.reset();
    EXPECT_EQ(screen.calls, (Names{"create FSample", "destroy FSample"}));
}

TEST_F(FormTest, ShowsItselfModallyThroughTheScreen) {
    bool shown = false;
    screen.whileModal = [&] {
        shown = form->visible();
        form->hide();
    };
    form->showModal(7);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(screen.calls, (Names{"create FSample", "modal FSample before 7"}));
}

TEST_F(FormTest, ComesToTheFrontOnlyWithAWindow) {
    form->bringToFront();
    EXPECT_EQ(screen.calls, Names{});
    form->load();
    form->bringToFront();
    EXPECT_EQ(screen.calls, (Names{"create FSample", "front FSample"}));
}

TEST_F(FormTest, HasThreeWindowStates) {
    ChangeRecorder changes(*form);
    form->set("WindowState", Variant(std::int16_t{2}));
    EXPECT_EQ(form->windowState(), WindowState::maximised);
    EXPECT_EQ(changes.take(), Names{"WindowState"});
    for (const std::int32_t state : {-1, 3, 65536}) {
        EXPECT_EQ(errorNumber([&] { form->set("WindowState", Variant(state)); }), automation::errOverflow) << state;
    }
    EXPECT_EQ(form->windowState(), WindowState::maximised);
}

TEST_F(FormTest, TakesBoundsFromTheViewWithoutTellingItBack) {
    ChangeRecorder changes(*form);
    form->boundsReported(10, 20, 300, 400, WindowState::maximised);
    EXPECT_EQ(changes.take(), Names{});
    EXPECT_EQ(form->left(), 10);
    EXPECT_EQ(form->top(), 20);
    EXPECT_EQ(form->width(), 300);
    EXPECT_EQ(form->height(), 400);
    EXPECT_EQ(form->windowState(), WindowState::maximised);
}

TEST_F(FormTest, ReportsANewClientArea) {
    Counter<> resizes(form->resizeEvent);
    form->clientAreaChanged(6000, 3000);
    EXPECT_EQ(resizes.take(), 1);
    EXPECT_EQ(form->get("ScaleWidth"), Variant(6000.0));
    EXPECT_EQ(form->get("ScaleHeight"), Variant(3000.0));
}

TEST_F(FormTest, ReportsActivation) {
    std::string seen;
    form->activateEvent.connect([&](bool active) { seen += active ? "+" : "-"; });
    form->activated(true);
    form->activated(false);
    EXPECT_EQ(seen, "+-");
}

TEST_F(FormTest, NumbersItsControlsInTheOrderOfTheTabulatorKey) {
    EXPECT_EQ(form->controls().size(), 3U);
    EXPECT_EQ(form->field->tabIndex(), 0);
    EXPECT_EQ(form->choices[1]->tabIndex(), 2);
    EXPECT_EQ(form->field->form(), form.get());
}

TEST_F(FormTest, FindsControlsByNameAndIndex) {
    EXPECT_EQ(form->findControl("TXTNAME"), form->field.get());
    EXPECT_EQ(form->findControl("cmdChooseItem", std::int16_t{1}), form->choices[1].get());
    EXPECT_EQ(form->findControl("cmdChooseItem"), nullptr);
    EXPECT_EQ(form->findControl("cmdChooseItem", std::int16_t{2}), nullptr);
    EXPECT_EQ(form->findControl("txtName", std::int16_t{0}), nullptr);
}

TEST_F(FormTest, ReadsItsControlsByName) {
    form->get("txtname").asObject()->set("Text", Variant("Saft"));
    EXPECT_EQ(form->field->text(), "Saft");
    const std::vector<Variant> second{1};
    EXPECT_EQ(form->get("cmdChooseItem", second).asObject(), form->choices[1]);
    EXPECT_EQ(errorNumber([&] { form->get("cmdChooseItem"); }), automation::errBadParamCount);
    const std::vector<Variant> third{2};
    EXPECT_EQ(errorNumber([&] { form->get("cmdChooseItem", third); }), automation::errBadIndex);
    EXPECT_EQ(errorNumber([&] { form->get("txtName", third); }), automation::errBadIndex);
    EXPECT_EQ(errorNumber([&] { form->get("txtOther"); }), automation::errUnknownName);
}

TEST_F(FormTest, AssignsNoControls) {
    EXPECT_EQ(errorNumber([&] { form->set("txtName", Variant("x")); }), automation::errMemberNotFound);
    EXPECT_EQ(errorNumber([&] { form->set("txtOther", Variant("x")); }), automation::errUnknownName);
    form->set("Caption", Variant("Rezept"));
    EXPECT_EQ(form->caption(), "Rezept");
}

TEST_F(FormTest, ReachesTheFontOfTheWindowByName) {
    form->get("Font").asObject()->set("Size", Variant(std::int16_t{8}));
    EXPECT_EQ(form->font().size(), 8);
    const auto font = form->get("Font").asObject();
    form.reset();
    EXPECT_EQ(font->get("Name"), Variant("Arial")) << "a part keeps what it is part of";
}

TEST_F(FormTest, IsShownHiddenAndUnloadedByName) {
    form->get("Show");
    EXPECT_EQ(form->get("hWnd"), Variant(101));
    form->get("Hide");
    EXPECT_EQ(form->get("Visible"), Variant(false));
    UnloadMode mode = UnloadMode::bySystem;
    form->queryUnloadEvent.connect([&](bool& cancel, UnloadMode why) {
        mode = why;
        cancel = why == UnloadMode::byUser;
    });
    EXPECT_EQ(form->get("Close"), Variant(false));
    EXPECT_EQ(mode, UnloadMode::byUser);
    EXPECT_EQ(form->get("Unload"), Variant(true));
    EXPECT_EQ(mode, UnloadMode::byCode);
    EXPECT_EQ(form->get("hWnd"), Variant(0));
}

}  // namespace
}  // namespace hx::forms
