// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

using automation::Error;
using Kind = support::FaultPlan::Kind;

struct OpeningTheEditor : testing::Test {
    OpeningTheEditor() { studio.host.explorer.setProject("Plant"); }
    Studio studio;
    const forms::Record& record = studio.host.record;
    const hosting::NodeTree& tree = studio.host.explorer.tree();
};

TEST_F(OpeningTheEditor, HappensWithTheFirstExpansionOfANode) {
    studio.start();
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_TRUE(studio.host.windows.isShown(studio.window().handle()));
    EXPECT_EQ(studio.window().path(), "D:\\Prj\\Plant.hxs");
    EXPECT_EQ(studio.window().secondPath(), "D:\\Prj\\Plant.hxs");
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(OpeningTheEditor, OpensTheConnectionOnTheProjectFile) {
    studio.start();
    studio.click("RCPE0");
    const ado::Connection& connection = *studio.window().dataEnvironment()->CnnRecipes;
    EXPECT_EQ(connection.state(), ado::adStateOpen);
    EXPECT_EQ(connection.connectionString(),
              "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=D:\\Prj\\Plant.hxs;Mode=Read|Write|Share Deny None;");
}

TEST_F(OpeningTheEditor, AddsANodeForEachRecipeAndForItsSubRecipesInTheOrderOfTheTable) {
    for (const char* name : {"Tee", "Cola", "Äpfel"}) studio.addRecipe(name);
    studio.start();
    studio.click("RCPE0");
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2", "RCPR3", "RCPU3"}));
    const auto recipe = tree.find("RCPR3");
    EXPECT_EQ(tree.caption(recipe), "Äpfel");
    EXPECT_EQ(tree.parent(recipe), tree.find("RCPE0"));
    EXPECT_EQ(tree.tag(recipe), "");
    EXPECT_EQ(tree.image(recipe), "icoRcpRecipe");
    EXPECT_EQ(tree.options(recipe), (std::array<bool, 3>{false, false, false}));
    const auto sub = tree.find("RCPU3");
    EXPECT_EQ(tree.caption(sub), "Unterrezepte");
    EXPECT_EQ(tree.parent(sub), recipe);
    EXPECT_EQ(tree.options(sub), (std::array<bool, 3>{false, false, false}));
    EXPECT_EQ(studio.window().dataEnvironment()->rsRecipes->state(), ado::adStateClosed);
}

TEST_F(OpeningTheEditor, WithoutRecipesAddsNothing) {
    studio.start();
    studio.click("RCPE0");
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    EXPECT_EQ(studio.window().dataEnvironment()->rsRecipes->state(), ado::adStateClosed);
}

TEST_F(OpeningTheEditor, ShowsTheBareTitleAndTheMenusOfTheRoot) {
    studio.addRecipe("Cola");
    studio.start();
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor");
    EXPECT_TRUE(studio.window().abr->mainBand().find("mnuRecipeNew")->enabled());
    EXPECT_FALSE(studio.window().abr->mainBand().find("mnuRecipeMembers")->enabled());
    EXPECT_EQ(studio.window().abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
}

TEST_F(OpeningTheEditor, ShowsTheWindowWhenItIsComplete) {
    studio.start();
    studio.faults.arm(1, Kind::connect);
    studio.click("RCPE0");
    EXPECT_EQ(studio.boxes().size(), 1u);
    std::string seen;
    const auto watched = studio.window().changed.subscribe([&](std::string_view property) {
        if (property != "Caption" && property != "Visible") return;
        const bool switched = !studio.window().abr->mainBand().find("mnuRecipeMembers")->enabled();
        seen += std::string(property) + "(" + studio.window().caption() + (switched ? ", menus) " : ") ");
    });
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_TRUE(seen.ends_with("Caption(HelvixStudio Rezepteditor, menus) Visible(HelvixStudio Rezepteditor, menus) "))
        << seen;
}

TEST_F(OpeningTheEditor, TriesAgainWhenTheWindowCannotBeLoaded) {
    studio.start();
    studio.faults.arm(1, Kind::connect);
    studio.click("RCPE0");
    EXPECT_EQ(studio.boxes().size(), 1u);
    {
        const auto watched =
            studio.window().loadEvent.subscribe([] { throw Error(automation::errFail, "No display."); });
        studio.connect->NodeExpand(Studio::node("RCPE0"));
    }
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: OpenEditor|-2147467259: No display."}));
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_TRUE(studio.window().loaded());
}

TEST_F(OpeningTheEditor, TellsOneAfterTheOtherThatNodesAndGridCannotBeRead) {
    studio.addRecipe("Cola");
    studio.start();
    studio.faults.armFrom(1, Kind::open, Error(ado::dbErrUnspecified, "Locked."));
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.boxes(),
              (Texts{"Connect: AddRecipeNodes|-2147467259: Locked.", "Connect: BindGrid|-2147467259: Locked."}));
    EXPECT_TRUE(studio.window().loaded());
}

TEST_F(OpeningTheEditor, ByAnExpansionShowsNoMembersOfAnyRecipe) {
    studio.addMember(studio.addRecipe("Cola"), "Tank1.Level");
    studio.start();
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.variables(), Texts{});
    EXPECT_EQ(studio.window().nodeKey(), "RCPE0");
}

TEST_F(OpeningTheEditor, PlacesTheWindowIntoTheStudioWithTheThreeStyleBits) {
    studio.start();
    studio.click("RCPE0");
    const forms::WindowHandle handle = studio.window().handle();
    EXPECT_EQ(studio.host.windows.parent(handle), studio.host.explorer.hostWindow());
    EXPECT_EQ(studio.host.windows.style(handle) & 0x80880000u, 0x80880000u);
    EXPECT_EQ(studio.connect->embedding().hostParent(), studio.host.explorer.hostWindow());
}

TEST_F(OpeningTheEditor, ShowsTheHourglassMeanwhile) {
    studio.start();
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    ASSERT_FALSE(record.pointers.empty());
    EXPECT_EQ(record.pointers.front(), forms::Pointer::hourglass);
    EXPECT_EQ(studio.host.screen.pointer(), forms::Pointer::standard);
}

TEST(OpeningTheLibrarysEditor, HooksNoWindowWhoseDatabaseCannotBeOpened) {
    Studio studio(Studio::libraryOptions());
    studio.start();
    studio.faults.arm(1, Kind::connect, Error(ado::dbErrUnspecified, "Locked."));
    studio.click("RCPE0");
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: Locked."}));
    EXPECT_EQ(studio.connect->embedding().editorMessage(), 0u);
    EXPECT_EQ(studio.connect->embedding().hostParent(), 0);
    studio.click("RCPE0");
    EXPECT_NE(studio.connect->embedding().editorMessage(), 0u);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(OpeningTheEditor, HandsTheMemberRecordsetToTheGrid) {
    studio.addMember(studio.addRecipe("Cola"), "Tank1.Level");
    studio.start();
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.window().tdbRM->dataSource(), studio.window().dataEnvironment()->rstabRecipeMembers);
    EXPECT_EQ(studio.window().tdbRM->columns().size(), 4u);
}

TEST_F(OpeningTheEditor, HappensOnce) {
    studio.addRecipe("Cola");
    studio.start();
    studio.click("RCPE0");
    const auto first = studio.connect->editorWindow();
    studio.addRecipe("Tee");
    studio.click("RCPR1");
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.connect->editorWindow(), first);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
}

TEST_F(OpeningTheEditor, OnAMissingFileShowsWhyAndLeavesTheWindowUnloaded) {
    studio.host.registry.writeString(std::string(host::registry_keys::projects) + "Plant", "Path", "E:\\Gone");
    studio.start();
    studio.click("RCPE0");
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: Could not find file 'E:\\Gone\\Plant.hxs'."}));
    ASSERT_NE(studio.connect->editorWindow(), nullptr);
    EXPECT_FALSE(studio.window().loaded());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    EXPECT_EQ(studio.host.screen.pointer(), forms::Pointer::standard);
}

TEST_F(OpeningTheEditor, TriesAgainWithTheNextClickOnceTheFileIsFree) {
    studio.addRecipe("Cola");
    studio.start();
    studio.faults.arm(1, Kind::connect, Error(ado::dbErrUnspecified, "The file is locked."));
    studio.click("RCPE0");
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: The file is locked."}));
    const auto window = studio.connect->editorWindow();
    studio.click("RCPR1");
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_EQ(studio.connect->editorWindow(), window);
    EXPECT_TRUE(window->loaded());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Cola");
}

TEST_F(OpeningTheEditor, AfterAFailedConnectionEventsOfNodesAreIgnored) {
    studio.start();
    studio.faults.arm(1, Kind::connect);
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    (void)studio.boxes();
    studio.rightClick("RCPE0");
    studio.press("RCPE0", forms::key::f8);
    EXPECT_TRUE(record.popUps.empty());
    EXPECT_TRUE(record.broughtToFront.empty());
    EXPECT_EQ(studio.boxes(), Texts{});
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_EQ(studio.nodes(), Texts{});
}

TEST_F(OpeningTheEditor, TellsInTheUsersLanguageThatMemoryIsMissing) {
    studio.addRecipe("Cola");
    studio.start();
    studio.host.screen.setLanguage(automation::Language::german);
    studio.faults.instead = [] { throw std::bad_alloc(); };
    studio.faults.arm(1, Kind::read);
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: AddRecipeNodes|-2147024882: Der Speicher reicht nicht aus."}));
}

TEST_F(OpeningTheEditor, KeepsTheEditorUsableWhenTheRecipesCannotBeRead) {
    studio.addRecipe("Cola");
    studio.addMember(1, "Tank1.Level");
    studio.start();
    studio.faults.arm(1, Kind::read, Error(ado::dbErrUnspecified, "The disk cannot be read."));
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: AddRecipeNodes|-2147467259: The disk cannot be read."}));
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.window().dataEnvironment()->rsRecipes->state(), ado::adStateClosed);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    studio.connect->RefreshView();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1"}));
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(OpeningTheEditor, ShowsTheErrorOfAWindowThatCannotBePlaced) {
    struct NoHostWindow : headless::ProjectExplorer {
        using headless::ProjectExplorer::ProjectExplorer;
        [[nodiscard]] forms::WindowHandle hostWindow() const override { return 77; }
    } explorer(0, studio.host.clipboard, "Plant");
    studio.create();
    studio.connect->Initialize("Plant", "", &explorer, nullptr);
    studio.host.script.onMessage = [&](const forms::ShownMessage&) {
        if (record.messages.size() < 3) studio.connect->NodeExpand(Studio::node("RCPE0"));
        return forms::message::Answer::ok;
    };
    studio.click("RCPE0");
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].substr(0, boxes[0].find('|')), "SetParentFromMe");
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.connect->embedding().hostParent(), 0);
    studio.connect->Terminate();
    EXPECT_EQ(studio.host.windows.lastParentAsked(), 0) << "what the failed placing gave";
}

TEST_F(OpeningTheEditor, AfterTerminateIsNotPossible) {
    studio.start();
    studio.connect->Terminate();
    studio.click("RCPE0");
    studio.connect->NodeExpand(Studio::node("RCPE0"));
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.boxes(), Texts{});
}

}  // namespace
}  // namespace hx::addin
