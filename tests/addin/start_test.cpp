// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "recipe/node_key.h"
#include "studio.h"

namespace hx::addin {
namespace {

struct StartUp : testing::Test {
    Studio studio;
    const forms::Record& record = studio.host.record;
    const hosting::NodeTree& tree = studio.host.explorer.tree();
};

TEST_F(StartUp, KeepsTheNameAndTurnsThePathIntoTheProjectFile) {
    studio.start();
    EXPECT_EQ(studio.connect->ProjectName(), "Plant");
    EXPECT_EQ(studio.connect->ProjectPath(), "D:\\Prj\\Plant.hxs");
    EXPECT_TRUE(studio.connect->LanguageChanged());
    EXPECT_EQ(studio.connect->HostValue(), studio.host.explorer.hostWindow());
    EXPECT_EQ(studio.connect->explorer(), &studio.host.explorer);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, AddsTheRootOfTheRecipeBranch) {
    studio.start();
    ASSERT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    const auto root = tree.find("RCPE0");
    EXPECT_EQ(tree.caption(root), "Rezepte");
    EXPECT_EQ(tree.tag(root), "0");
    EXPECT_EQ(tree.image(root), "icoRcpRecipe");
    EXPECT_EQ(tree.options(root), (std::array<bool, 3>{true, true, true}));
    EXPECT_EQ(tree.number(root), 0);
    EXPECT_EQ(tree.parent(root), hosting::NodeTree::root);
}

TEST_F(StartUp, ReadsTheLanguageWhenTheAddInIsCreated) {
    studio.host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1033);
    studio.create();
    studio.host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1031);
    studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr);
    EXPECT_EQ(tree.caption(tree.find("RCPE0")), "Recipes");
}

TEST_F(StartUp, SpeaksGermanWhereTheRegistryNamesALanguageThatItHasNot) {
    studio.host.registry.writeNumber(host::registry_keys::helvix, "LCID", 1036);
    studio.start();
    EXPECT_EQ(tree.caption(tree.find("RCPE0")), "Rezepte");
}

TEST_F(StartUp, HandsEveryImageToTheExplorerByTheClipboard) {
    studio.start();
    const FImageList list;
    EXPECT_EQ(studio.host.explorer.images().images(), list.images());
    EXPECT_EQ(studio.host.clipboard.picture(), list.images().back().second);
}

TEST_F(StartUp, TheImageListHoldsThePictureOfEveryNode) {
    const FImageList list;
    for (const char* key : {"RCPE0", "RCPR1", "RCPU1"}) {
        const forms::Picture* picture = list.find(std::string(recipe::KeyImage(key)));
        ASSERT_NE(picture, nullptr) << key;
        EXPECT_NE(picture->svg.find("viewBox=\"0 0 16 16\""), std::string::npos);
    }
}

TEST_F(StartUp, SetsTheHelpFile) {
    studio.host.registry.writeString(host::registry_keys::tarnwell, "Common", "C:\\Shared");
    studio.start();
    EXPECT_EQ(studio.connect->help().file(), "C:\\Shared\\helpfiles\\Rezeptsystem.chm");
}

TEST_F(StartUp, OpensNeitherAConnectionNorAWindow) {
    studio.faults.arm(1, support::FaultPlan::Kind::connect);
    studio.start();
    EXPECT_FALSE(studio.faults.fired());
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
}

TEST_F(StartUp, WithAnEmptyProjectNameAddsNoNodeAndSetsNoHelpFile) {
    studio.start("");
    EXPECT_EQ(studio.nodes(), Texts{});
    EXPECT_EQ(studio.connect->help().file(), "");
    EXPECT_EQ(studio.connect->ProjectPath(), "");
    EXPECT_EQ(studio.connect->HostValue(), 0);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, WithARegistryThatCannotBeReadAddsNoNode) {
    studio.create();
    studio.host.registry.failWith(automation::Error(automation::errFail, "No registry."));
    studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr);
    EXPECT_EQ(studio.nodes(), Texts{});
    EXPECT_EQ(studio.boxes(), (Texts{"MHXSGlobalEditors: ReadCurrentProject|-2147467259: No registry."}));
}

TEST_F(StartUp, WithARegistryThatCannotBeReadSaysSoAndSpeaksGerman) {
    studio.host.registry.failWith(automation::Error(automation::errFail, "No registry."));
    studio.create();
    EXPECT_EQ(studio.boxes(), (Texts{"Connect|-2147467259: No registry."}));
    EXPECT_EQ(studio.connect->texts().GetResource(102), "Rezepte");
    EXPECT_FALSE(studio.connect->LanguageChanged()) << "that is for Initialize";
}

TEST_F(StartUp, TerminateRemovesABranchWhoseHelpCouldNotBeFound) {
    studio.create();
    studio.host.registry.failWith(automation::Error(automation::errFail, "No registry."));
    studio.connect->Initialize("D:\\Prj\\Plant.hxs", "", &studio.host.explorer, nullptr);
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: Initialize|-2147467259: No registry."}));
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), Texts{});
}

TEST_F(StartUp, ShowsWhyTheRootCannotBeAddedAndSetsNoHelpFile) {
    host::NewNode taken;
    taken.key = "RCPE0";
    studio.host.explorer.addNode(taken);
    studio.start();
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].substr(0, 34), "Connect: InitTreeView|-2147352565:");
    EXPECT_FALSE(studio.host.explorer.images().images().empty()) << "the pictures come first";
    EXPECT_EQ(studio.connect->help().file(), "");
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"})) << "a node that is not the add-in's is left alone";
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, WithoutAnExplorerSaysSo) {
    studio.create();
    studio.connect->Initialize("Plant", "", nullptr, nullptr);
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: Initialize|-2147467259: The studio gave no project explorer."}));
    EXPECT_EQ(studio.connect->Explorer(), nullptr);
    studio.host.screen.setLanguage(automation::Language::german);
    studio.create();
    studio.connect->Initialize("Plant", "", nullptr, nullptr);
    EXPECT_EQ(studio.boxes().back(),
              "Connect: Initialize|-2147467259: Das Studio hat keinen Projektexplorer übergeben.");
}

TEST_F(StartUp, TerminateWithoutAnEditorRemovesTheRootAndNothingElse) {
    host::NewNode other;
    other.key = "VARS0";
    studio.host.explorer.addNode(other);
    studio.start();
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), (Texts{"VARS0"}));
    EXPECT_EQ(studio.connect->explorer(), nullptr);
    EXPECT_EQ(record.helpCloses, 1);
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_TRUE(record.pointers.empty());
}

TEST_F(StartUp, TerminateRemovesTheBranchAlsoAfterASecondInitialize) {
    studio.start();
    studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr);
    EXPECT_EQ(studio.boxes().size(), 1u) << "the root is there already";
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), Texts{});
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, TerminateTellsThatTheBranchIsGone) {
    studio.start();
    studio.host.explorer.removeNode("RCPE0");
    studio.connect->Terminate();
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_TRUE(boxes[0].starts_with("Connect: Terminate|-2147352565: ")) << boxes[0];
}

TEST_F(StartUp, TerminateLeavesTheBranchOfAnother) {
    studio.start();
    studio.connect->Terminate();
    studio.host.explorer.addNode({.key = "RCPE0"});
    studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr);
    EXPECT_EQ(studio.boxes().size(), 1u);
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
}

TEST_F(StartUp, TerminateAfterTheExplorerWasTakenAwayDoesNothing) {
    studio.start();
    studio.connect->Initialize("Plant", "", nullptr, nullptr);
    EXPECT_EQ(studio.boxes().size(), 1u);
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, NothingCanBeShownBeforeInitialize) {
    studio.create();
    studio.press("RCPE0", forms::key::f6, forms::shift::alt);
    studio.connect->ShowSelectedNode();
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, TerminateBeforeInitializeDoesNothing) {
    studio.create();
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(StartUp, EveryMessageGetsAnEmptyAnswerAndChangesNothing) {
    studio.start();
    for (const char* message : {"", "RefreshView", "HX_EDITORS"}) {
        EXPECT_TRUE(studio.connect->GetMessage("Studio", message, automation::Variant(5)).isEmpty());
    }
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
}

TEST_F(StartUp, MembersWithoutAnActionDoNothing) {
    studio.start();
    studio.connect->StartupComplete();
    studio.connect->Deactivate();
    studio.connect->NodeMouseDown(Studio::node("RCPE0"), {forms::button::right, 0, 0, 0});
    studio.connect->NodeMouseMove(Studio::node("RCPE0"), {});
    studio.connect->NodeKeyPress(Studio::node("RCPE0"), 'c');
    studio.connect->NodeKeyUp(Studio::node("RCPE0"), forms::key::f6, 0);
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(record.beeps, 0);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
}

}  // namespace
}  // namespace hx::addin
