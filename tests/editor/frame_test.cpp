// SPDX-License-Identifier: MIT
#include "automation/convert.h"
#include "editor/database_work.h"
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct Frame : EditorWindow {};

TEST_F(Frame, LoadsWithTheNotFoundTextAndThePathAsCaption) {
    window->load();
    EXPECT_EQ(window->caption(), "Resource 310 not found/plant/line.hxs");
}

TEST_F(Frame, HasItsBarsInTheirHeightsAndTheirTipsWhenItIsLoaded) {
    EXPECT_EQ(window->tbrfunc->height(), 420);
    EXPECT_EQ(window->sb->height(), 330);
    window->load();
    EXPECT_EQ(window->tbrfunc->button(Variant("Edit")).toolTipText(), "Bearbeiten");
}

TEST_F(Frame, F1OpensTheHelpAndIsLeftToNobodyElse) {
    open();
    forms::KeyEvent key{forms::key::f1, forms::shift::shift};
    window->keyDownEvent.raise(key);
    EXPECT_FALSE(key.swallowed());
    EXPECT_TRUE(host.record.help.empty());
    host.help.failWith(automation::Error(automation::errFail, "No help."));
    key = {forms::key::f1, forms::shift::none};
    window->keyDownEvent.raise(key);
    EXPECT_TRUE(key.swallowed());
    EXPECT_EQ(messages(), (Texts{"-2147467259: No help."}));
    EXPECT_EQ(host.record.messages[0].title, "frmtabgrid: KeyDown");
}

TEST_F(Frame, TellsInABoxWithOneButton) {
    window->tell("Das ist alles.");
    ASSERT_EQ(messages(), (Texts{"Das ist alles."}));
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
    EXPECT_EQ(host.record.messages[0].title, forms::message::defaultTitle);
}

TEST_F(Frame, ANodeBindsAGridThatCouldNotBeBoundAndNoOther) {
    window->load();
    ASSERT_TRUE(grid().columns().empty());
    window->showNode(mixKey);
    ASSERT_EQ(grid().columns().size(), 4U);
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Tank.Temp", "Pump.Speed"}));
    const auto column = grid().columns().front();
    window->showNode(mixSubRecipes);
    EXPECT_EQ(grid().columns().front(), column);
    EXPECT_EQ(window->abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
}

TEST_F(Frame, SavesAPendingEditWhenItsRowsAreReadAnew) {
    open();
    show(mixKey);
    type(0, "Tank.Pressure");
    EXPECT_TRUE(window->saveFirst());
    recipe::RefreshMemberView(grid(), window->memberRecordset(), window->nodeKey(), window->saveFirst(), addIn.texts());
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(Frame, LoadsTheThreePanelsOfTheStatusLineInGerman) {
    window->load();
    EXPECT_EQ(window->sb->panelCount(), 3);
    EXPECT_EQ(window->sb->panel(1).text(), "Func:");
    EXPECT_EQ(window->sb->panel(2).text(), "Rezepte:");
    EXPECT_EQ(window->sb->panel(3).text(), "Rezeptelemente");
}

TEST_F(Frame, LoadsTheThreePanelsOfTheStatusLineInEnglish) {
    useLanguage(english);
    window->load();
    EXPECT_EQ(window->sb->panel(1).text(), "Func:");
    EXPECT_EQ(window->sb->panel(2).text(), "Recipes");
    EXPECT_EQ(window->sb->panel(3).text(), "Recipe Members");
}

TEST_F(Frame, LoadingResetsTheCounters) {
    open();
    window->abr->click("mnuOptionStatistik");
    window->unload(forms::UnloadMode::byCode);
    make();
    window->load();
    std::int32_t recipes = -1, memberRows = -1;
    addIn.statusCounters.UpdateStatusCounters(*window->sb, addIn.texts(), {}, recipe::StatusCounters::Mode::get,
                                              recipes, memberRows);
    EXPECT_EQ(recipes, 0);
    EXPECT_EQ(memberRows, 0);
}

TEST_F(Frame, LoadsMaximisedWithTheDefaultsWhenThereIsNoSettingsFile) {
    window->load();
    EXPECT_EQ(window->windowState(), forms::WindowState::maximised);
    EXPECT_EQ(window->width(), 6000);
    EXPECT_EQ(window->height(), 3000);
    EXPECT_EQ(window->left(), 0);
    EXPECT_EQ(window->top(), 0);
    EXPECT_EQ(window->font().name(), "Arial");
    EXPECT_EQ(window->font().size(), 8) << "sizes are applied as whole numbers";
    EXPECT_EQ(window->font().weight(), 400);
    EXPECT_TRUE(window->sb->visible());
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(Frame, LoadsTheSettingsFileInTheFolderOfTheProjectOverTheDefaults) {
    host.iniFile.setBytes(iniPath,
                          "[frmtabGridRCP]\r\nMe.WindowState=0\r\nMe.PosLeft=150\r\nMe.PosTop=75\r\nMe.Width=9000\r\n"
                          "Me.Font.Size=10\r\nsb.Visible=False\r\n");
    window->load();
    EXPECT_EQ(window->settingsFile(), iniPath);
    EXPECT_EQ(window->windowState(), forms::WindowState::normal);
    EXPECT_EQ(window->left(), 150);
    EXPECT_EQ(window->top(), 75);
    EXPECT_EQ(window->width(), 9000);
    EXPECT_EQ(window->height(), 3000);
    EXPECT_EQ(window->font().size(), 10);
    EXPECT_FALSE(window->sb->visible());
}

TEST_F(Frame, FindsTheSettingsFileBehindEitherSeparator) {
    window->setPaths("C:\\plant\\line.hxs", {});
    EXPECT_EQ(window->settingsFile(), "C:\\plant\\HXEditors.ini");
    window->setPaths("line.hxs", {});
    EXPECT_EQ(window->settingsFile(), "HXEditors.ini");
}

TEST_F(Frame, NamesEverySettingThatCannotBeAppliedAndAppliesTheOthers) {
    host.iniFile.setBytes(
        iniPath, "[frmtabGridRCP]\r\nMe.WindowState=7\r\nMe.Width=40000\r\nMe.Height=4500\r\nsb.Visible=x\r\n");
    window->load();
    ASSERT_EQ(messages().size(), 2U);
    EXPECT_NE(messages()[0].find("/plant/HXEditors.ini\r\nsb.Visible=x"), std::string::npos) << messages()[0];
    EXPECT_NE(messages()[1].find("\r\nMe.WindowState=7 ("), std::string::npos) << messages()[1];
    EXPECT_NE(messages()[1].find("\r\nMe.Width=40000 ("), std::string::npos) << messages()[1];
    EXPECT_TRUE(messages()[1].starts_with("-2147352566: /plant/HXEditors.ini\r\n")) << messages()[1];
    EXPECT_TRUE(messages()[1].ends_with(")")) << messages()[1];
    window->applySettings("abr");
    EXPECT_EQ(messages().size(), 2U) << "nothing is stored of the menu bar";
    EXPECT_EQ(host.record.messages[1].title, "frmtabgrid: Load");
    EXPECT_EQ(window->height(), 4500);
    EXPECT_TRUE(window->loaded());
}

TEST_F(Frame, ShowsTheGridForTheNodesOfRecipesOnly) {
    open();
    for (const char* key : {"RCPE0", "RCPR1", "RCPU1", "RCPE", "RCPR", "RCPU"}) {
        window->SwitchGrids("VARS1");
        EXPECT_FALSE(grid().visible());
        EXPECT_FALSE(grid().tabStop());
        window->SwitchGrids(key);
        EXPECT_TRUE(grid().visible()) << key;
        EXPECT_TRUE(grid().tabStop()) << key;
    }
}

TEST_F(Frame, HidesTheGridForNodesOfOtherAddIns) {
    open();
    for (const char* key : {"VARS1", "RCP", "", "rcpr1", "XRCPR1"}) {
        window->SwitchGrids("RCPR1");
        window->SwitchGrids(key);
        EXPECT_FALSE(grid().visible()) << key;
        EXPECT_FALSE(grid().tabStop()) << key;
        EXPECT_FALSE(window->pctrcpTabSplit->visible()) << key;
    }
}

TEST_F(Frame, TheRootHasTheBareTitleWhateverTheName) {
    window->MakeMyCaption("RCPE0", "Mix");
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor");
    window->MakeMyCaption("RCPE0", "");
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor");
}

TEST_F(Frame, ARecipeStandsBehindTheTitle) {
    window->MakeMyCaption("RCPR17", "Mix");
    EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Mix");
    useLanguage(english);
    window->MakeMyCaption("RCPU17", "Mix");
    EXPECT_EQ(window->caption(), "HelvixStudio Recipe Editor: Mix");
}

TEST_F(Frame, AShortKeyShowsTheName) {
    for (const char* key : {"RCPR", "RCPU", "RCPE"}) {
        window->MakeMyCaption(key, "Mix");
        EXPECT_EQ(window->caption(), "HelvixStudio Rezepteditor: Mix") << key;
    }
}

TEST_F(Frame, AltF6GivesTheExplorerTheKeyboard) {
    open();
    const std::vector<forms::Control*> controls = {window.get(), window->abr.get()};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        forms::KeyEvent event{forms::key::f6, forms::shift::alt};
        controls[i]->keyDown(event);
        EXPECT_EQ(host.explorer.activations(), static_cast<std::int32_t>(i + 1));
    }
}

TEST_F(Frame, NoOtherKeyDoesAnythingInTheWindow) {
    open();
    for (const forms::KeyEvent& key :
         {forms::KeyEvent{forms::key::f6, forms::shift::none}, forms::KeyEvent{forms::key::f6, forms::shift::ctrl},
          forms::KeyEvent{forms::key::f9, forms::shift::alt}, forms::KeyEvent{forms::key::f8, forms::shift::none}}) {
        forms::KeyEvent event = key;
        window->keyDown(event);
        EXPECT_FALSE(event.swallowed());
    }
    EXPECT_EQ(host.explorer.activations(), 0);
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(Frame, F1OpensTheHelpOfTheGrid) {
    open();
    const std::vector<forms::Control*> controls = {window.get(), window->abr.get(), window->tdbRM.get()};
    for (forms::Control* control : controls) {
        host.record.help.clear();
        forms::KeyEvent event{forms::key::f1, forms::shift::none};
        control->keyDown(event);
        EXPECT_TRUE(event.swallowed());
        ASSERT_EQ(host.record.help.size(), 1u);
        EXPECT_EQ(host.record.help[0].context, resources::help_context::grid);
        EXPECT_EQ(host.record.help[0].owner, window->handle());
    }
}

TEST_F(Frame, AltF6WithoutAnExplorerDoesNothing) {
    addIn.node = nullptr;
    forms::KeyEvent event{forms::key::f6, forms::shift::alt};
    window->keyDown(event);
    EXPECT_EQ(host.explorer.activations(), 0);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(Frame, KnowsTheNameOfANodesRecipe) {
    EXPECT_EQ(window->recipeName(mixKey), "Mix");
    EXPECT_EQ(window->recipeName("RCPU" + std::to_string(syrup)), "Sirup");
    EXPECT_EQ(window->recipeName("RCPE0"), "");
    EXPECT_EQ(window->recipeName("RCPE"), "");
    EXPECT_EQ(window->recipeName("RCPR999"), "");
    window->setDataEnvironment(nullptr);
    EXPECT_EQ(window->recipeName(mixKey), "");
}

TEST_F(Frame, ReadsNothingForTheNameOfANodeWithoutARecipe) {
    faults.arm(1, support::FaultPlan::Kind::open);
    EXPECT_EQ(window->recipeName("RCPE0"), "");
    EXPECT_FALSE(faults.fired());
}

TEST_F(Frame, ShowsNoSubRecipesBeforeTheFirstNode) { EXPECT_FALSE(window->subRecipeView()); }

TEST_F(Frame, ACommandDropsWhatWaitsInTheTableOfRecipes) {
    data->rsRecipes->open();
    data->rsRecipes->field("Comment").setValue(Variant("Neu"));
    { const DatabaseWork work(data); }
    EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
    EXPECT_EQ(automation::toText(database.table("TrcpRecipe").row(mix)->at(7)), "");
}

TEST_F(Frame, TheBusyFlagStaysSetUntilTheOutermostMessageIsGone) {
    const Busy outer(addIn.busyFlag);
    { const Busy inner(addIn.busyFlag); }
    EXPECT_TRUE(addIn.busyFlag);
}

TEST_F(Frame, ShowsAnErrorUnderTheProceduresName) {
    showError(host.screen, automation::Error(-2147217887, "Refused"), "ConnectToDataBase");
    EXPECT_EQ(messages(), (Texts{"-2147217887: Refused"}));
    EXPECT_EQ(host.record.messages[0].title, "ConnectToDataBase");
    EXPECT_EQ(host.record.messages[0].style, forms::message::ok);
}

}  // namespace
}  // namespace hx::editor
