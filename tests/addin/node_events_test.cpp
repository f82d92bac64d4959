#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

namespace key = forms::key;
namespace shift = forms::shift;
using forms::Pointer;

struct NodeEvents : testing::Test {
    NodeEvents() {
        const std::int32_t mix = studio.addRecipe("Mix");
        const std::int32_t syrup = studio.addRecipe("Sirup");
        studio.addMember(mix, "Tank1.Level");
        studio.addMember(mix, "Mix.File", syrup);
        studio.addMember(mix, "Tank2.Level");
        studio.start();
    }
    void open() {
        studio.click("RCPE0");
        EXPECT_EQ(studio.boxes(), Texts{});
    }
    bool visible(std::string_view tool) { return studio.window().abr->mainBand().find(tool)->visible(); }
    Studio studio;
    headless::Record& record = studio.host.record;
};

TEST_F(NodeEvents, AClickOnARecipeShowsItsVariables) {
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_TRUE(studio.window().tdbRM->visible());
    EXPECT_TRUE(studio.window().tdbRM->allowUpdate());
    EXPECT_TRUE(visible("mnuRecipeEdit"));
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(NodeEvents, AClickOnTheSubRecipesOfARecipeShowsThem) {
    studio.click("RCPU1");
    EXPECT_EQ(studio.variables(), (Texts{"Mix.File"}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPU1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_TRUE(visible("mnuRecipeMemberNewRecipe"));
}

TEST_F(NodeEvents, AClickOnTheRootHandsTheBarePrefixToTheWindow) {
    studio.click("RCPR1");
    studio.click("RCPE0");
    EXPECT_EQ(studio.window().nodeKey(), "RCPE");
    EXPECT_EQ(studio.variables(), Texts{});
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor");
    EXPECT_FALSE(studio.window().tdbRM->allowUpdate());
    EXPECT_TRUE(visible("mnuRecipeNew"));
}

TEST_F(NodeEvents, AClickShowsTheHourglassWhileItReads) {
    open();
    record.pointers.clear();
    studio.click("RCPR1");
    EXPECT_EQ(record.pointers, (std::vector<Pointer>{Pointer::hourglass, Pointer::standard}));
}

TEST_F(NodeEvents, AClickOnAnotherAddInsNodeOnlySwitchesTheMenus) {
    studio.click("RCPR1");
    record.pointers.clear();
    studio.click("VARS7");
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Mix");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
    EXPECT_FALSE(visible("mnuRecipeEdit"));
    EXPECT_TRUE(record.pointers.empty());
}

TEST_F(NodeEvents, AClickShowsTheGridThatAnotherAddInsNodeHadHidden) {
    open();
    for (const char* node : {"RCPE0", "RCPR1", "RCPU1"}) {
        studio.window().SwitchGrids("VARS7");
        ASSERT_FALSE(studio.window().tdbRM->visible());
        studio.click(node);
        EXPECT_TRUE(studio.window().tdbRM->visible()) << node;
    }
}

TEST_F(NodeEvents, AClickWritesAPendingEditOfTheNodeBefore) {
    studio.click("RCPR1");
    studio.window().tdbRM->setText(0, 2, "Tank9.Level");
    studio.click("RCPR2");
    EXPECT_EQ(automation::toText((*studio.database.table("TrcpRecipeMember").row(1))[2]), "Tank9.Level");
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank9.Level", "Tank2.Level"}));
}

TEST_F(NodeEvents, AClickThatTheDatabaseRefusesShowsWhy) {
    open();
    studio.faults.arm(1, support::FaultPlan::Kind::open, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.click("RCPR1");
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: NodeClick|-2147467259: Locked."}));
    EXPECT_EQ(studio.host.screen.pointer(), Pointer::standard);
    studio.click("RCPR1");
    EXPECT_EQ(studio.variables(), (Texts{"Tank1.Level", "Tank2.Level"}));
}

TEST_F(NodeEvents, AClickOnARecipeThatIsGoneShowsNoMembers) {
    open();
    studio.database.table("TrcpRecipe").remove(2);
    studio.click("RCPR2");
    EXPECT_EQ(studio.variables(), Texts{});
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(NodeEvents, ADoubleClickBringsTheWindowToTheFront) {
    studio.connect->NodeDblClick(Studio::node("RCPR1"));
    EXPECT_TRUE(record.broughtToFront.empty()) << "there is no window yet";
    open();
    studio.window().hide();
    studio.connect->NodeDblClick(Studio::node("RCPR1"));
    EXPECT_EQ(record.broughtToFront, (Texts{"frmtabgrid"}));
    EXPECT_TRUE(studio.host.windows.isShown(studio.window().handle()));
}

TEST_F(NodeEvents, AnExpansionOpensTheEditor) {
    studio.connect->NodeExpand(Studio::node("RCPR1"));
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.window().nodeKey(), "RCPE0");
}

struct RightClick {
    const char* node;
    const char* band;
    Texts tools;
};

TEST_F(NodeEvents, ARightClickShowsTheMenuOfTheNode) {
    open();
    const RightClick rows[] = {
        {"RCPE0", "mnuRecipe", {"mnuRecipeDescriptor", "mnuRecipeNew", "mnuShowEditorSep", "mnuShowEditor"}},
        {"RCPR1",
         "mnuRecipe",
         {"mnuRecipeDescriptor", "mnuRecipeEdit", "mnuRecipeDelete", "mnuShowEditorSep", "mnuShowEditor"}},
        {"RCPU1", "mnuShowEditorHelper", {"mnuShowEditor"}},
    };
    for (const RightClick& row : rows) {
        record.popUps.clear();
        studio.rightClick(row.node);
        ASSERT_EQ(record.popUps.size(), 1u) << row.node;
        EXPECT_EQ(record.popUps[0].band, row.band) << row.node;
        EXPECT_FALSE(record.popUps[0].refused) << row.node;
        Texts tools;
        for (const auto& entry : record.popUps[0].entries) tools.push_back(entry.tool);
        EXPECT_EQ(tools, row.tools) << row.node;
        EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr) << "the menus are the editor's own";
    }
}

TEST_F(NodeEvents, AMenuThatFailsLeavesTheMenusOfTheEditorAsTheyWere) {
    open();
    studio.host.script.onPopUp = [](forms::Band&) { return std::string("mnuNone"); };
    studio.rightClick("RCPR1");
    EXPECT_EQ(studio.boxes().size(), 1u);
    EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr);
}

TEST_F(NodeEvents, ARightClickElsewhereShowsNoMenu) {
    open();
    studio.rightClick("VARS1");
    EXPECT_TRUE(record.popUps.empty());
}

TEST_F(NodeEvents, OtherButtonsShowNoMenu) {
    open();
    for (const std::int16_t button : {forms::button::left, forms::button::middle}) {
        studio.connect->NodeMouseUp(Studio::node("RCPR1"), {button, 0, 0, 0});
    }
    EXPECT_TRUE(record.popUps.empty());
}

TEST_F(NodeEvents, ARightClickBeforeTheEditorExistsIsIgnored) {
    studio.rightClick("RCPE0");
    EXPECT_TRUE(record.popUps.empty());
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
}

TEST_F(NodeEvents, ACommandOfTheMenuMayReplaceTheWindow) {
    open();
    const std::weak_ptr<editor::frmtabgrid> before = studio.connect->editorWindow();
    studio.host.script.onPopUp = [&](forms::Band&) {
        studio.connect->RefreshView();
        return std::string();
    };
    studio.rightClick("RCPR1");
    EXPECT_NE(studio.connect->editorWindow(), before.lock());
    EXPECT_EQ(studio.window().nodeKey(), "RCPE0");
    EXPECT_TRUE(visible("mnuRecipeNew")) << "the new window has the menus of the node that it shows";
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(NodeEvents, ACommandOfTheMenuMayDeleteTheNode) {
    studio.click("RCPR1");
    studio.host.script.onPopUp = [](forms::Band&) { return std::string("mnuRecipeDelete"); };
    studio.host.script.onMessage = [](const headless::Message&) { return forms::message::Answer::yes; };
    studio.rightClick("RCPR1");
    EXPECT_EQ(record.messages.size(), 1u) << "the question";
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR2", "RCPU2"}));
    EXPECT_NE(studio.window().nodeKey(), "RCPR1");
    EXPECT_FALSE(visible("mnuRecipeEdit")) << "the menus are those of the node that is shown";
}

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
    studio.host.script.onMessage = [this](const headless::Message&) {
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
}

TEST_F(NodeEvents, AKeyWithoutACommandLeavesTheShownNode) {
    studio.click("RCPR1");
    for (const std::int16_t code : {key::f8, key::f9, key::f1}) studio.press("RCPU2", code);
    studio.press("RCPR2", key::del);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_EQ(record.beeps, 0);
}

TEST_F(NodeEvents, ARightClickOnANodeThatIsNotShownShowsItBeforeItsMenu) {
    studio.click("RCPR1");
    studio.host.script.onPopUp = [this](forms::Band&) {
        EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Sirup");
        return std::string("mnuRecipeDelete");
    };
    studio.host.script.onMessage = [](const headless::Message&) { return forms::message::Answer::yes; };
    studio.rightClick("RCPR2");
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
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
}

TEST_F(NodeEvents, F6KeepsAMaximisedWindow) {
    open();
    studio.window().setWindowState(forms::WindowState::maximised);
    studio.press("RCPE0", key::f6, shift::ctrl);
    EXPECT_EQ(studio.window().windowState(), forms::WindowState::maximised);
}

TEST_F(NodeEvents, F6WithoutASelectionStillShowsTheWindow) {
    open();
    studio.window().hide();
    studio.press("RCPE0", key::f6);
    EXPECT_TRUE(studio.window().visible());
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

TEST_F(NodeEvents, AreIgnoredWhileTheEditorShowsABoxOfItsOwn) {
    studio.click("RCPR1");
    studio.connect->busy().set(true);
    studio.click("RCPR2");
    studio.rightClick("RCPR2");
    studio.press("RCPR2", key::f6);
    EXPECT_EQ(studio.window().nodeKey(), "RCPR1");
    EXPECT_TRUE(record.popUps.empty());
    studio.connect->busy().set(false);
    studio.click("RCPR2");
    EXPECT_EQ(studio.window().nodeKey(), "RCPR2");
}

}  // namespace
}  // namespace hx::addin
