// SPDX-License-Identifier: MIT
#include "node_events.h"

namespace hx::addin {
namespace {

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
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(boxes[0].starts_with("Connect: NodeMouseUp|")) << boxes[0];
    EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr);
}

TEST_F(NodeEvents, ARightClickElsewhereShowsNoMenu) {
    studio.click("RCPR1");
    studio.rightClick("VARS1");
    EXPECT_TRUE(record.popUps.empty());
    EXPECT_FALSE(visible("mnuRecipeEdit")) << "the menus are those of the node";
    EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr);
    studio.faults.arm(1);
    studio.click("RCPR2");
    EXPECT_EQ(studio.boxes().size(), 1u);
    studio.rightClick("");
    EXPECT_TRUE(record.popUps.empty()) << "no node, while none is shown";
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
    studio.host.script.onMessage = [](const forms::ShownMessage&) { return forms::message::Answer::yes; };
    studio.rightClick("RCPR1");
    EXPECT_EQ(record.messages.size(), 1u) << "the question";
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR2", "RCPU2"}));
    EXPECT_NE(studio.window().nodeKey(), "RCPR1");
    EXPECT_FALSE(visible("mnuRecipeEdit")) << "the menus are those of the node that is shown";
}

TEST_F(NodeEvents, ARightClickOnANodeThatIsNotShownShowsItBeforeItsMenu) {
    studio.click("RCPR1");
    studio.host.script.onPopUp = [this](forms::Band&) {
        EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Sirup");
        return std::string("mnuRecipeDelete");
    };
    studio.host.script.onMessage = [](const forms::ShownMessage&) { return forms::message::Answer::yes; };
    studio.rightClick("RCPR2");
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
}

}  // namespace
}  // namespace hx::addin
