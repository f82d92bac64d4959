// SPDX-License-Identifier: MIT
#include <array>
#include <gtest/gtest.h>

#include "editor/commands.h"
#include "studio.h"

namespace hx::addin {
namespace {

using automation::Variant;

struct ClosingTheEditor : testing::Test {
    ClosingTheEditor() {
        studio.addRecipe("Cola");
        studio.addRecipe("Tee");
        studio.addMember(1, "Tank1.Level");
        studio.start();
        studio.click("RCPR1");
        EXPECT_EQ(studio.boxes(), Texts{});
    }
    std::string storedVariable() { return automation::toText((*studio.database.table("TrcpRecipeMember").row(1))[2]); }
    Studio studio;
    const forms::Record& record = studio.host.record;
};

TEST_F(ClosingTheEditor, TerminateRemovesTheBranchAndEndsTheWindow) {
    const auto window = studio.connect->editorWindow();
    const auto data = window->dataEnvironment();
    const forms::WindowHandle handle = window->handle();
    data->rsRecipes->open();
    studio.connect->Terminate();
    EXPECT_EQ(studio.nodes(), Texts{});
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_FALSE(window->loaded());
    EXPECT_FALSE(studio.host.windows.exists(handle));
    EXPECT_EQ(window->dataEnvironment(), nullptr);
    for (const auto& recordset : data->recordsets()) EXPECT_EQ(recordset->state(), ado::adStateClosed);
    EXPECT_EQ(data->CnnRecipes->state(), ado::adStateClosed);
    EXPECT_EQ(studio.connect->explorer(), nullptr);
    EXPECT_EQ(record.helpCloses, 1);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, AWindowThatSomebodyKeepsHasLetGoOfTheAddIn) {
    const auto window = studio.connect->editorWindow();
    studio.connect->Terminate();
    window->commands().mnuOption(2);
    EXPECT_EQ(studio.boxes(), (Texts{"mnuOption|-2147467259: The editor has been closed."}));
    studio.connect.reset();
    for (const auto command : std::to_array<std::int16_t>({0, 2, 6})) window->commands().mnuOption(command);
    window->commands().mnuRecipeFunc(0);
    EXPECT_EQ(studio.boxes(), (Texts{"mnuOption|-2147467259: The editor has no database now",
                                     "mnuOption|-2147467259: The editor has been closed.",
                                     "mnuOption|-2147467259: The editor has been closed.",
                                     "mnuRecipeFunc|-2147467259: The editor has no database now"}));
    EXPECT_EQ(window->PosLeft(), window->left());
    forms::KeyEvent key{forms::key::f6, forms::shift::alt};
    window->onKeyDown(key);
    window->MenuSwitcher("RCPR1", true);
}

TEST_F(ClosingTheEditor, GivesTheWindowMinusOneAsItsParent) {
    forms::WindowHandle parent = 77;
    const auto watched = studio.window().queryUnloadEvent.subscribe([&](bool&, forms::UnloadMode mode) {
        parent = studio.host.windows.parent(studio.window().handle());
        EXPECT_EQ(mode, forms::UnloadMode::byCode);
        EXPECT_FALSE(studio.host.windows.isShown(studio.window().handle()));
    });
    EXPECT_EQ(studio.host.windows.parent(studio.window().handle()), studio.host.explorer.hostWindow());
    studio.connect->Terminate();
    EXPECT_EQ(parent, 0) << "-1 is the top level";
    EXPECT_EQ(studio.host.windows.lastParentAsked(), -1);
}

TEST_F(ClosingTheEditor, SavesAPendingEdit) {
    studio.window().tdbRM->setText(0, 2, "Tank2.Level");
    studio.connect->Terminate();
    EXPECT_EQ(storedVariable(), "Tank2.Level");
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, DropsAnEditThatTheDatabaseRefusesAndClosesAllTheSame) {
    const auto data = studio.window().dataEnvironment();
    studio.window().tdbRM->setText(0, 2, "Tank2.Level");
    studio.faults.arm(1, support::FaultPlan::Kind::update);
    studio.connect->Terminate();
    EXPECT_EQ(storedVariable(), "Tank1.Level");
    EXPECT_EQ(data->CnnRecipes->state(), ado::adStateClosed);
}

TEST_F(ClosingTheEditor, TellsWhichEditWasDroppedAndWhy) {
    studio.window().tdbRM->setText(0, 2, "Tank2.Level");
    studio.faults.arm(1, support::FaultPlan::Kind::update, automation::Error(ado::dbErrUnspecified, "Gesperrt."));
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(), (Texts{"VerifyAdds|-2147467259: Die Eingabe \"Tank2.Level\" konnte nicht gespeichert "
                                     "werden und wurde verworfen. Gesperrt."}));
}

TEST_F(ClosingTheEditor, TheNextNodeToldWhichEditWasDroppedAndWhy) {
    studio.window().tdbRM->setText(0, 2, "Tank2.Level");
    studio.faults.arm(1, support::FaultPlan::Kind::update, automation::Error(ado::dbErrUnspecified, "Gesperrt."));
    studio.click("RCPR2");
    EXPECT_EQ(studio.boxes(), (Texts{"VerifyAdds|-2147467259: Die Eingabe \"Tank2.Level\" konnte nicht gespeichert "
                                     "werden und wurde verworfen. Gesperrt."}));
    EXPECT_EQ(studio.window().nodeKey(), "RCPR2");
}

TEST_F(ClosingTheEditor, ByTheUserStoresTheEditAndKeepsOneThatIsRefused) {
    studio.window().tdbRM->setText(0, 2, "Tank2.Level");
    studio.faults.arm(1, support::FaultPlan::Kind::update, automation::Error(ado::dbErrUnspecified, "Gesperrt."));
    studio.window().closeByFrame();
    EXPECT_EQ(studio.boxes().size(), 1U);
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.window().tdbRM->text(0, 2), "Tank2.Level");
    studio.window().closeByFrame();
    EXPECT_EQ(storedVariable(), "Tank2.Level");
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, WritesTheSettingsOfTheWindow) {
    studio.connect->Terminate();
    EXPECT_TRUE(studio.host.iniFile.exists("D:\\Prj\\HXEditors.ini"));
}

TEST_F(ClosingTheEditor, ASettingsFileThatCannotBeWrittenDoesNotKeepTheWindow) {
    const auto window = studio.connect->editorWindow();
    studio.host.iniFile.failWritesWith(automation::Error(automation::errFail, "The disk is full."));
    studio.connect->Terminate();
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    const Texts boxes = studio.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_NE(boxes[0].find("The disk is full."), std::string::npos);
}

TEST_F(ClosingTheEditor, RefreshViewBuildsWindowConnectionAndNodesAnew) {
    const auto before = studio.connect->editorWindow();
    studio.addRecipe("Limo");
    studio.host.explorer.setNodeProperty("RCPE0", host::node_property::expanded, true);
    studio.connect->RefreshView();
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_NE(studio.connect->editorWindow(), before);
    EXPECT_FALSE(before->loaded());
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2", "RCPR3", "RCPU3"}));
    EXPECT_FALSE(studio.host.explorer.isExpanded("RCPE0"));
    EXPECT_EQ(studio.connect->explorer(), &studio.host.explorer);
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor");
}

TEST_F(ClosingTheEditor, RefreshViewOnARootWithoutChildrenRemovesNothing) {
    for (const std::string& key : studio.host.explorer.childKeys("RCPE0", 1)) studio.host.explorer.removeNode(key);
    for (const ado::Key key : {1, 2}) studio.database.table("TrcpRecipe").remove(key);
    const auto before = studio.connect->editorWindow();
    studio.connect->RefreshView();
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    EXPECT_NE(studio.connect->editorWindow(), before);
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, ADoubleClickOnTheRootTellsAgainWhyThereIsNoConnection) {
    studio.faults.arm(1, support::FaultPlan::Kind::connect, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.connect->RefreshView();
    studio.faults.arm(1, support::FaultPlan::Kind::connect, automation::Error(ado::dbErrUnspecified, "Still locked."));
    studio.connect->NodeDblClick(studio.host.explorer.eventOf("RCPE0"));
    EXPECT_EQ(studio.boxes(),
              (Texts{"ConnectToDataBase|-2147467259: Locked.", "ConnectToDataBase|-2147467259: Still locked."}));
    studio.connect->NodeDblClick(studio.host.explorer.eventOf("RCPE0"));
    EXPECT_EQ(studio.boxes(), Texts{});
    EXPECT_TRUE(studio.window().loaded());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2"}));
}

TEST_F(ClosingTheEditor, RefreshViewWithoutItsConnectionLeavesTheRootAndTriesAgainLater) {
    studio.faults.arm(1, support::FaultPlan::Kind::connect, automation::Error(ado::dbErrUnspecified, "Locked."));
    studio.connect->RefreshView();
    EXPECT_EQ(studio.boxes(), (Texts{"ConnectToDataBase|-2147467259: Locked."}));
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    studio.click("RCPE0");
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2"}));
}

TEST_F(ClosingTheEditor, TheWindowsOwnCommandRefreshesTheViewAndOutlivesItself) {
    const std::weak_ptr<editor::frmtabgrid> before = studio.connect->editorWindow();
    studio.window().abr->click("mnuOptionActualize");
    studio.window().abr->click("mnuOptionActualize");
    ASSERT_FALSE(before.expired()) << "the window is kept while its command may still be on the stack";
    EXPECT_NE(studio.connect->editorWindow(), before.lock());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2"}));
    studio.click("RCPR2");
    EXPECT_TRUE(before.expired());
    EXPECT_EQ(studio.window().caption(), "HelvixStudio Rezepteditor: Tee");
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, AnEventInsideTheRefreshDoesNotReleaseTheWindowWhoseCommandRuns) {
    const std::weak_ptr<editor::frmtabgrid> before = studio.connect->editorWindow();
    bool checked = false;
    studio.faults.arm(1, support::FaultPlan::Kind::connect);
    studio.host.script.onMessage = [&](const forms::ShownMessage&) {
        studio.connect->NodeDblClick(Studio::node("RCPE0"));
        checked = !before.expired();
        return forms::message::Answer::ok;
    };
    studio.window().abr->click("mnuOptionActualize");
    EXPECT_TRUE(checked);
    EXPECT_FALSE(before.expired());
}

TEST_F(ClosingTheEditor, EveryCallOfTheStudioReleasesTheWindowsThatWereClosedBefore) {
    const std::function<void()> calls[] = {
        [this] { studio.click("RCPR1"); },
        [this] { studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr); },
        [this] { studio.connect->Terminate(); },
    };
    for (const auto& call : calls) {
        const std::weak_ptr<editor::frmtabgrid> before = studio.connect->editorWindow();
        studio.window().abr->click("mnuOptionActualize");
        EXPECT_FALSE(before.expired());
        call();
        EXPECT_TRUE(before.expired());
        (void)studio.boxes();
    }
}

TEST_F(ClosingTheEditor, AnAddInReleasedWithoutTerminateEndsItsWindow) {
    const std::weak_ptr<editor::frmtabgrid> window = studio.connect->editorWindow();
    const automation::ObjectRef explorer = studio.connect->Explorer();
    studio.connect.reset();
    EXPECT_TRUE(window.expired());
    EXPECT_TRUE(studio.host.iniFile.exists("D:\\Prj\\HXEditors.ini"));
    EXPECT_THROW(explorer->get("HostWindow"), automation::Error) << "the studio may be gone";
}

TEST_F(ClosingTheEditor, AnAddInReleasedAfterTerminateHasNothingLeftToClose) {
    studio.connect->Terminate();
    studio.connect.reset();
    EXPECT_EQ(record.helpCloses, 1);
}

TEST_F(ClosingTheEditor, TellsWhatCannotBeClosedAndGoesOn) {
    const auto watched =
        studio.window().tdbRM->settleEvent.subscribe([] { throw automation::Error(automation::errFail, "No view."); });
    studio.host.help.failWith(automation::Error(automation::errFail, "No help."));
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(),
              (Texts{"Connect: CloseEditor|-2147467259: No view.", "Connect: CloseEditor|-2147467259: No help."}));
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    studio.connect.reset();
}

TEST(ClosingTheLibrarysEditor, LeavesAWindowThatWasNeverLoadedAlone) {
    Studio studio(Studio::libraryOptions());
    studio.start();
    studio.click("RCPE0");
    studio.faults.arm(1, support::FaultPlan::Kind::connect);
    studio.connect->RefreshView();
    EXPECT_EQ(studio.boxes().size(), 1u);
    studio.connect->Terminate();
    EXPECT_EQ(studio.boxes(), Texts{});
}

// Half way through: the window is asked whether it may end.
TEST(ClosingTheLibrarysEditor, LeavesTheStudioTheDatabaseAndTheHookBeforeTheWindowEndsAndTheHelpLast) {
    Studio studio(Studio::libraryOptions());
    studio.addRecipe("Cola");
    studio.start();
    studio.click("RCPR1");
    const auto window = studio.connect->editorWindow();
    const auto data = window->dataEnvironment();
    const auto hooked = studio.host.windows.procedure(window->handle());
    bool asked = false;
    const auto watched = window->queryUnloadEvent.subscribe([&](bool&, forms::UnloadMode) {
        asked = true;
        EXPECT_EQ(studio.host.windows.parent(window->handle()), 0);
        EXPECT_EQ(window->dataEnvironment(), nullptr);
        EXPECT_EQ(data->CnnRecipes->state(), ado::adStateClosed);
        EXPECT_NE(studio.host.windows.procedure(window->handle()), hooked);
        EXPECT_EQ(studio.connect->editorWindow(), window);
        EXPECT_EQ(studio.connect->explorer(), &studio.host.explorer);
        EXPECT_EQ(studio.host.record.helpCloses, 0);
    });
    studio.connect->Terminate();
    EXPECT_TRUE(asked);
    EXPECT_EQ(studio.host.record.helpCloses, 1);
}

TEST_F(ClosingTheEditor, RefreshViewEmptiesAndClosesTheBranchBeforeItClosesTheWindow) {
    studio.host.explorer.setNodeProperty("RCPE0", host::node_property::expanded, true);
    bool asked = false;
    const auto watched = studio.window().queryUnloadEvent.subscribe([&](bool&, forms::UnloadMode) {
        asked = true;
        EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
        EXPECT_FALSE(studio.host.explorer.isExpanded("RCPE0"));
    });
    studio.connect->RefreshView();
    EXPECT_TRUE(asked);
    EXPECT_EQ(record.helpCloses, 1);
}

TEST(RefreshingTheView, EmptiesTheBranchBeforeItClosesItAndTellsWhatFails) {
    struct Noting : headless::ProjectExplorer {
        using headless::ProjectExplorer::ProjectExplorer;
        void removeNode(std::string_view key) override {
            notes.push_back("remove " + std::string(key));
            headless::ProjectExplorer::removeNode(key);
        }
        void setNodeProperty(std::string_view key, std::int32_t, const automation::Variant&) override {
            notes.push_back("close " + std::string(key));
            throw automation::Error(automation::errFail, "No such node.");
        }
        Texts notes;
    };
    Studio studio;
    studio.addRecipe("Cola");
    Noting explorer(studio.host.explorer.hostWindow(), studio.host.clipboard, "Plant");
    studio.create();
    studio.connect->Initialize("Plant", "", &explorer, nullptr);
    studio.click("RCPE0");
    studio.connect->RefreshView();
    EXPECT_EQ(explorer.notes, (Texts{"remove RCPR1", "close RCPE0"}));
    EXPECT_EQ(studio.boxes(), (Texts{"Connect: RefreshView|-2147467259: No such node."}));
    EXPECT_TRUE(studio.window().loaded());
    studio.connect.reset();
}

TEST_F(ClosingTheEditor, TerminateKeepsTheOpenedFlagSoThatLaterClicksDoNothing) {
    studio.connect->Terminate();
    studio.connect->Initialize("Plant", "", &studio.host.explorer, nullptr);
    studio.click("RCPE0");
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.boxes(), Texts{});
}

TEST_F(ClosingTheEditor, RefreshViewAfterTerminateDoesNothing) {
    studio.connect->Terminate();
    studio.connect->RefreshView();
    EXPECT_EQ(studio.connect->editorWindow(), nullptr);
    EXPECT_EQ(studio.boxes(), Texts{});
}

}  // namespace
}  // namespace hx::addin
