// SPDX-License-Identifier: MIT
#include "node_events.h"

namespace hx::addin {
namespace {

TEST_F(NodeEvents, CtrlCBeepsOnAnyNodeAndDoesNothingElse) {
    std::int32_t beeps = 0;
    for (const char* node : {"RCPE0", "RCPR1", "RCPU1", "VARS1", ""}) {
        studio.press(node, key::c, shift::ctrl);
        EXPECT_EQ(record.beeps, ++beeps) << node;
    }
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
}

TEST_F(NodeEvents, CtrlCLeavesTheOpenEditorAsItIs) {
    studio.click("RCPR1");
    const std::string caption = studio.window().caption();
    const forms::Picture picture = studio.host.clipboard.picture();
    studio.press("RCPU2", key::c, shift::ctrl);
    EXPECT_EQ(record.beeps, 1);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().caption(), caption);
    EXPECT_TRUE(record.popUps.empty());
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_EQ(studio.host.clipboard.picture(), picture);
}

TEST_F(NodeEvents, CWithoutCtrlDoesNothing) {
    open();
    for (const std::int16_t state : {shift::none, shift::shift, shift::alt}) studio.press("RCPR1", key::c, state);
    EXPECT_EQ(record.beeps, 0);
}

struct CommandKey {
    const char* node;
    std::int16_t code;
    std::int16_t shift;
    const char* tool;  ///< clicked; empty for none
};

TEST_F(NodeEvents, TheCommandKeysClickTheToolsOfTheRecipeMenu) {
    open();
    const CommandKey rows[] = {
        {"RCPR1", key::f9, shift::none, "mnuRecipeEdit"},
        {"RCPR1", key::f9, shift::shift, "mnuRecipeEdit"},
        {"RCPR1", key::del, shift::ctrl, "mnuRecipeDelete"},
        {"RCPR1", key::del, shift::none, ""},
        {"RCPR1", key::del, shift::alt, ""},
        {"RCPE0", key::f8, shift::none, "mnuRecipeNew"},
        {"RCPE0", key::f8, shift::alt, "mnuRecipeNew"},
        {"RCPU1", key::f8, shift::none, ""},
        {"RCPU1", key::f9, shift::none, ""},
        {"RCPU1", key::del, shift::ctrl, ""},
        {"VARS1", key::f9, shift::none, ""},
        {"RCPR1", key::o, shift::none, ""},
    };
    for (const CommandKey& row : rows) {
        studio.click(row.node);
        // A disabled tool answers a click by a beep: the one that is expected, or any when none is.
        for (const char* tool : {"mnuRecipeNew", "mnuRecipeEdit", "mnuRecipeDelete"}) {
            studio.window()
                .abr->band(automation::Variant("mnuRecipe"))
                .tool(automation::Variant(tool))
                .setEnabled(*row.tool != 0 && std::string_view(tool) != row.tool);
        }
        studio.host.script.onModal.clear();
        const std::int32_t before = record.beeps;
        studio.press(row.node, row.code, row.shift);
        EXPECT_EQ(record.beeps - before, *row.tool != 0 ? 1 : 0) << row.node << " " << row.code << " " << row.shift;
        EXPECT_TRUE(record.help.empty()) << row.node << " " << row.code;
        EXPECT_EQ(studio.boxes(), Texts{});
    }
}

TEST_F(NodeEvents, ADisabledCommandBeeps) {
    open();
    studio.press("RCPE0", key::f9);
    EXPECT_EQ(record.beeps, 1) << "the root has nothing to edit";
}

TEST_F(NodeEvents, AKeyOfANodeThatIsNotShownShowsItFirst) {
    studio.click("RCPR1");
    studio.host.script.onMessage = [this](const forms::ShownMessage&) {
        EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Sirup")
            << "the user sees what he is asked for";
        return forms::message::Answer::yes;
    };
    studio.press("RCPR2", key::del, shift::ctrl);
    EXPECT_EQ(record.messages.size(), 1u) << "the question";
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
    studio.click("RCPR1");
    studio.press("RCPE0", key::f8);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR3", "RCPU3"}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPE");
    studio.press("RCPR1", key::f9);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
}

TEST_F(NodeEvents, NothingHappensWhileWhatIsTypedKeepsTheNodeBefore) {
    for (const bool byKey : {true, false}) {
        studio.click("RCPR1");
        studio.faults.armFrom(1, support::FaultPlan::Kind::update);
        studio.window().tdbRM->setText(0, 2, "Tank8.Level");
        bool again = true;
        studio.host.script.onMessage = [&](const forms::ShownMessage&) {
            if (std::exchange(again, false))
                studio.window().tdbRM->setText(0, 2, byKey ? "Tank9.Level" : "Tank7.Level");
            return forms::message::Answer::ok;
        };
        if (byKey) studio.press("RCPR2", key::del, shift::ctrl);
        else studio.rightClick("RCPR2");
        EXPECT_EQ(studio.boxes().size(), 2u) << "the first text is dropped, the second one is to be corrected";
        EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
        EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2"}));
        EXPECT_TRUE(record.popUps.empty());
        studio.faults.disarm();
    }
}

TEST_F(NodeEvents, AKeyWithoutACommandLeavesTheShownNode) {
    studio.click("RCPR1");
    for (const std::int16_t code : {key::f8, key::f9, key::f1}) studio.press("RCPU2", code);
    studio.press("RCPR2", key::del);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(record.beeps, 0);
}

TEST_F(NodeEvents, NothingHappensToAnotherNodeThanTheOneThatCannotBeShown) {
    studio.click("RCPR1");
    const auto fail = [this] {
        studio.faults.armFrom(1, support::FaultPlan::Kind::open, automation::Error(ado::dbErrUnspecified, "Locked."));
    };
    fail();
    studio.press("RCPR2", key::del, shift::ctrl);
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: NodeKeyDown|-2147467259: Locked."}));
    fail();
    studio.rightClick("RCPR2");
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: NodeMouseUp|-2147467259: Locked."}));
    EXPECT_TRUE(record.popUps.empty());
    studio.faults.disarm();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2"}));
    studio.press("RCPR2", key::f9);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR2") << "the next key tries again";
}

TEST_F(NodeEvents, KeysBeforeTheEditorExistsAreIgnored) {
    for (const std::int16_t code : {key::f8, key::f9, key::f1}) studio.press("RCPR1", code);
    studio.press("RCPR1", key::del, shift::ctrl);
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(record.beeps, 0);
    EXPECT_TRUE(record.help.empty());
}

TEST_F(NodeEvents, F6OpensTheEditorOnTheSelectedNode) {
    studio.host.explorer.select("RCPE0");
    studio.press("RCPE0", key::f6);
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.window().nodeKey(), "RCPE");
    EXPECT_EQ(record.broughtToFront, (Texts{"frmtabgrid"}));
}

TEST_F(NodeEvents, F6ShowsTheSelectedNodeAndRestoresTheWindow) {
    open();
    studio.host.explorer.setProject("Plant");
    studio.host.explorer.select("RCPR1");
    studio.window().setWindowState(forms::WindowState::minimised);
    studio.press("RCPE0", key::f6);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().windowState(), forms::WindowState::normal);
    EXPECT_EQ(record.broughtToFront, (Texts{"frmtabgrid"}));
    EXPECT_EQ(studio.host.explorer.activations(), 0);
    EXPECT_TRUE(record.help.empty());
}

TEST_F(NodeEvents, F6KeepsAMaximisedWindow) {
    open();
    studio.window().setWindowState(forms::WindowState::maximised);
    studio.press("RCPE0", key::f6, shift::ctrl);
    EXPECT_EQ(studio.window().windowState(), forms::WindowState::maximised);
}

TEST_F(NodeEvents, F6WithoutASelectionStillShowsTheWindow) {
    open();
    expectShownAndRaised([this] { studio.press("RCPE0", key::f6); });
    EXPECT_EQ(studio.window().nodeKey(), "RCPE");
}

TEST_F(NodeEvents, AltF6GivesTheKeyboardBackToTheExplorer) {
    open();
    studio.host.explorer.select("RCPR2");
    studio.press("RCPE0", key::f6, shift::alt);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR2");
    EXPECT_EQ(studio.host.explorer.activations(), 1);
}

struct HelpKey {
    const char* node;
    std::int32_t context;
};

TEST_F(NodeEvents, F1OpensTheHelpOfTheNode) {
    studio.host.registry.writeString(host::registry_keys::tarnwell, "Common", "C:\\Shared");
    studio.connect->Terminate();
    studio.start();
    EXPECT_EQ(studio.boxes(), Texts{});
    open();
    const HelpKey rows[] = {{"RCPE0", 100001}, {"RCPR1", 100019}, {"RCPU1", 100020}};
    for (const HelpKey& row : rows) {
        record.help.clear();
        studio.press(row.node, key::f1);
        ASSERT_EQ(record.help.size(), 1u) << row.node;
        EXPECT_EQ(record.help[0].context, row.context) << row.node;
        EXPECT_EQ(record.help[0].owner, studio.window().handle());
        EXPECT_EQ(record.help[0].file, "C:\\Shared\\helpfiles\\Rezeptsystem.chm");
    }
    record.help.clear();
    studio.press("VARS1", key::f1);
    EXPECT_TRUE(record.help.empty());
}

}  // namespace
}  // namespace hx::addin
