// SPDX-License-Identifier: MIT
#include "addin/embedding.h"

#include <gtest/gtest.h>

#include "host/window_offset.h"
#include "studio.h"

namespace hx::addin {
namespace {

namespace window = host::window;

struct Activation : testing::Test {
    explicit Activation(headless::HostOptions options = Studio::libraryOptions()) : studio(std::move(options)) {
        studio.addRecipe("Cola");
        studio.addMember(1, "Tank1.Level");
        studio.start();
        studio.click("RCPR1");
        EXPECT_EQ(studio.boxes(), Texts{});
        studio.window().activateEvent.connect([this](bool active) { passedOn += active ? "on " : "off "; });
    }
    void send(std::uint32_t message, std::uint32_t wParam) {
        studio.host.windows.sendMessage(studio.window().handle(), message, wParam);
    }
    Studio studio;
    std::string passedOn;
};

TEST_F(Activation, RefreshesTheMembersOfTheCurrentNode) {
    studio.addMember(1, "Tank2.Level");
    send(window::activateMessage, window::active);
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
    studio.addMember(1, "Tank3.Level");
    send(window::activateMessage, window::clickActive);
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level", "Tank3.Level"}));
    EXPECT_EQ(passedOn, "on on ");
}

TEST_F(Activation, DeactivationSwitchesTheGridOfTheCurrentNode) {
    studio.window().tdbRM->setVisible(false);
    send(window::activateMessage, window::inactive);
    EXPECT_TRUE(studio.window().tdbRM->visible());
    EXPECT_EQ(passedOn, "off ");
}

TEST_F(Activation, WhileTheBusyFlagIsSetChangesNothingAndIsStillPassedOn) {
    studio.connect->busy() = true;
    studio.addMember(1, "Tank2.Level");
    studio.window().tdbRM->setVisible(false);
    int reloads = 0;
    const auto watched = studio.window().tdbRM->rowsChanged.subscribe([&] { ++reloads; });
    send(window::activateMessage, window::active);
    send(window::activateMessage, window::inactive);
    EXPECT_EQ(reloads, 0);
    EXPECT_FALSE(studio.window().tdbRM->visible());
    EXPECT_EQ(passedOn, "on off ");
}

TEST_F(Activation, OtherMessagesArePassedOnAndDoNothing) {
    int reloads = 0;
    const auto watched = studio.window().tdbRM->rowsChanged.subscribe([&] { ++reloads; });
    EXPECT_EQ(studio.connect->embedding().editorMessage(), studio.host.windows.registerMessage("HX_EDITORS"));
    send(studio.connect->embedding().editorMessage(), 1);
    send(window::activateMessage + 1, window::active);
    EXPECT_EQ(reloads, 0);
    EXPECT_EQ(passedOn, "");
}

TEST_F(Activation, AFailingRefreshShowsOneBoxThoughTheBoxActivatesTheWindowAgain) {
    studio.faults.arm(1, support::FaultPlan::Kind::open, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.host.script.onMessage = [this](const forms::ShownMessage&) {
        EXPECT_TRUE(studio.connect->busy());
        studio.connect->busy() = false;
        studio.faults.arm(1, support::FaultPlan::Kind::open);
        send(window::activateMessage, window::active);
        return forms::message::Answer::ok;
    };
    send(window::activateMessage, window::active);
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: ActivateEditorWindow|-2147467259: Locked."}));
    EXPECT_FALSE(studio.connect->busy());
}

TEST_F(Activation, AFailureThatLastsIsShownOnceUntilARefreshWorks) {
    const auto fail = [this] {
        studio.faults.arm(1, support::FaultPlan::Kind::open, automation::Error(ado::dbErrUnspecified, "Locked."));
        send(window::activateMessage, window::active);
        studio.faults.disarm();
    };
    const Texts box = {"Connect: ActivateEditorWindow|-2147467259: Locked."};
    fail();
    EXPECT_EQ(studio.boxes(), box);
    fail();
    EXPECT_EQ(studio.boxes(), Texts{});
    send(window::activateMessage, window::active);
    fail();
    EXPECT_EQ(studio.boxes(), box);
}

TEST_F(Activation, TellsTheGridToRefreshAlsoWithoutANode) {
    studio.window().setNodeKey({});
    int reloads = 0;
    const auto watched = studio.window().tdbRM->rowsChanged.subscribe([&] { ++reloads; });
    send(window::activateMessage, window::active);
    EXPECT_EQ(reloads, 1);
}

TEST_F(Activation, AFailureThatLastsIsShownOnceWhereverItIsMet) {
    int reloads = 0;
    const auto watched = studio.window().tdbRM->rowsChanged.subscribe([&] {
        if (++reloads % 2 == 0) throw automation::Error(automation::errFail, "No display.");
    });
    send(window::activateMessage, window::active);
    EXPECT_EQ(studio.boxes().size(), 1u);
    send(window::activateMessage, window::active);
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_EQ(reloads, 4);
}

TEST_F(Activation, AfterTheRootWasOpenedByAnExpansionRefreshesTheEmptyRoot) {
    Studio other(Studio::libraryOptions());
    other.addMember(other.addRecipe("Cola"), "Tank1.Level");
    other.start();
    other.connect->NodeExpand(Studio::node("RCPE0"));
    other.host.windows.sendMessage(other.window().handle(), window::activateMessage, window::active);
    EXPECT_EQ(other.variables(), Texts{});
    EXPECT_EQ(other.boxes(), Texts{});
}

TEST_F(Activation, TheProcedureOfTheWindowIsPutBackBeforeTheWindowEnds) {
    const forms::WindowHandle handle = studio.window().handle();
    const auto hooked = studio.host.windows.procedure(handle);
    window::ProcedureAddress atTheEnd = 0;
    const auto watched = studio.window().unloadEvent.subscribe(
        [&] { atTheEnd = studio.host.windows.procedure(studio.window().handle()); });
    studio.connect->Terminate();
    EXPECT_NE(atTheEnd, 0);
    EXPECT_NE(atTheEnd, hooked);
}

TEST_F(Activation, ANewWindowAfterARefreshIsWatchedAgain) {
    studio.connect->RefreshView();
    studio.click("RCPR1");
    studio.addMember(1, "Tank2.Level");
    send(window::activateMessage, window::active);
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
}

struct ActivationOutsideTheLibrary : Activation {
    ActivationOutsideTheLibrary() : Activation(Studio::windowsOptions()) {}
};

TEST_F(ActivationOutsideTheLibrary, IsNotWatched) {
    studio.addMember(1, "Tank2.Level");
    int reloads = 0;
    const auto watched = studio.window().tdbRM->rowsChanged.subscribe([&] { ++reloads; });
    send(window::activateMessage, window::active);
    EXPECT_EQ(reloads, 0);
    EXPECT_EQ(passedOn, "on ");
    EXPECT_EQ(studio.connect->embedding().editorMessage(), 0u);
}

struct Embedding : testing::Test {
    Embedding() { window->load(); }
    Studio studio;
    std::shared_ptr<Connect> connect = std::make_shared<Connect>(studio.host.services());
    std::shared_ptr<editor::frmtabgrid> window = std::make_shared<editor::frmtabgrid>(*connect);
    EditorEmbedding embedding{studio.host.services(), connect->busy()};
    headless::WindowOperations& windows = studio.host.windows;
};

TEST_F(Embedding, AddsTheStyleBitsToThoseThatAreThere) {
    windows.setStyle(window->handle(), 0x10000002);
    EXPECT_TRUE(embedding.SetParentFromMe(*window, studio.host.explorer));
    EXPECT_EQ(windows.style(window->handle()), 0x90880002u);
    EXPECT_EQ(windows.parent(window->handle()), studio.host.explorer.hostWindow());
}

TEST_F(Embedding, GivesTheWindowBackToAParent) {
    const forms::WindowHandle frame = windows.add(host::window::Rect{0, 0, 100, 100});
    EXPECT_TRUE(embedding.GetParentFromMe(*window, frame));
    EXPECT_EQ(windows.parent(window->handle()), frame);
}

TEST_F(Embedding, ShowsAFailureUnderItsName) {
    EXPECT_FALSE(embedding.GetParentFromMe(*window, 99));
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].substr(0, 28), "GetParentFromMe|-2147023496:");
}

TEST_F(Embedding, UnhookingWithoutAHookDoesNotTouchTheWindow) {
    (void)windows.install(window->handle(), [](auto, auto, auto, auto) { return 0; });
    const auto procedure = windows.procedure(window->handle());
    embedding.UnhookEditorWindow(*window);
    EXPECT_EQ(windows.procedure(window->handle()), procedure);
}

TEST_F(Embedding, HookingAndUnhookingRestoresTheProcedure) {
    const auto procedure = windows.procedure(window->handle());
    embedding.HookEditorWindow(*window);
    EXPECT_NE(windows.procedure(window->handle()), procedure);
    embedding.UnhookEditorWindow(*window);
    EXPECT_EQ(windows.procedure(window->handle()), procedure);
}

TEST_F(Embedding, PassesEveryMessageOnAndReturnsWhatThePreviousProcedureGave) {
    std::vector<std::int64_t> seen;
    (void)windows.install(window->handle(), [&](forms::WindowHandle handle, std::uint32_t message, std::uint32_t wParam,
                                                std::int32_t lParam) {
        seen = {handle, message, wParam, lParam};
        return 42;
    });
    embedding.HookEditorWindow(*window);
    const forms::WindowHandle handle = window->handle();
    for (const bool busy : {false, true}) {
        connect->busy() = busy;
        for (const std::uint32_t message : {0x400u, window::activateMessage, embedding.editorMessage()}) {
            EXPECT_EQ(windows.sendMessage(handle, message, 3, 4), 42);
            EXPECT_EQ(seen, (std::vector<std::int64_t>{handle, message, 3, 4}));
        }
    }
}

TEST_F(Embedding, ActivationOfAWindowWithoutItsDatabaseOrWithoutAHookDoesNothing) {
    embedding.HookEditorWindow(*window);
    window->setNodeKey("RCPE0");
    window->tdbRM->setVisible(false);
    windows.sendMessage(window->handle(), window::activateMessage, window::inactive);
    const auto hooked = windows.procedure(window->handle());
    embedding.UnhookEditorWindow(*window);
    windows.call(hooked, window->handle(), window::activateMessage, window::inactive, 0);
    window->setDataEnvironment(std::make_shared<recipe::DataEnvironment>(studio.provider));
    windows.call(hooked, window->handle(), window::activateMessage, window::inactive, 0);
    EXPECT_FALSE(window->tdbRM->visible());
}

TEST_F(Embedding, TheSavedProcedureIsKeptAfterUnhooking) {
    const auto original = windows.procedure(window->handle());
    embedding.HookEditorWindow(*window);
    embedding.UnhookEditorWindow(*window);
    const auto other = windows.install(window->handle(), [](auto, auto, auto, auto) { return 0; });
    EXPECT_NE(windows.procedure(window->handle()), other);
    embedding.UnhookEditorWindow(*window);
    EXPECT_EQ(windows.procedure(window->handle()), original);
}

TEST(WindowOffset, IsTheDistanceOfTheUpperLeftCornersInPixels) {
    support::MemoryProvider provider;
    headless::Host host(provider);
    const forms::WindowHandle a = host.windows.add(host::window::Rect{130, 20, 400, 300});
    const forms::WindowHandle b = host.windows.add(host::window::Rect{100, 50, 900, 700});
    EXPECT_EQ(host::WindowLeftOffset(host.windows, a, b), 30.0f);
    EXPECT_EQ(host::WindowTopOffset(host.windows, a, b), -30.0f);
    EXPECT_EQ(host::WindowLeftOffset(host.windows, b, a), -30.0f);
    EXPECT_THROW((void)host::WindowTopOffset(host.windows, a, 5), automation::Error);
}

}  // namespace
}  // namespace hx::addin
