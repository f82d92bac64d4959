// SPDX-License-Identifier: MIT
#include <algorithm>

#include "editor_window.h"
#include "recipe/node_key.h"

namespace hx::editor {
namespace {

using automation::Error;
using automation::Variant;

struct Closing : EditorWindow {
    Closing() { open(); }
    [[nodiscard]] std::string stored(const std::string& key) const {
        return host.iniFile.read("frmtabGridRCP", key, "(none)", iniPath);
    }
    [[nodiscard]] static std::size_t lineCount(const std::string& text) {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }
};

TEST_F(Closing, ByTheCloseBoxStoresWhatIsBeingTyped) {
    show(mixKey);
    const auto view = grid().settleEvent.subscribe([this] { type(0, "Tank.Pressure"); });
    window->closeByFrame();
    EXPECT_EQ(storedVariable(1), "Tank.Pressure");
}

TEST_F(Closing, ByTheCloseBoxTellsWhatItCannotSettleAndHidesTheWindow) {
    const auto view = grid().settleEvent.subscribe([] { throw Error(automation::errFail, "No view."); });
    window->closeByFrame();
    EXPECT_EQ(messages(), (Texts{"-2147467259: No view."}));
    EXPECT_EQ(host.record.messages[0].title, "frmtabgrid: QueryUnload");
    EXPECT_FALSE(window->visible());
}

TEST_F(Closing, ByTheCloseBoxHidesTheWindowAndKeepsItAlive) {
    EXPECT_FALSE(window->closeByFrame());
    EXPECT_TRUE(window->loaded());
    EXPECT_FALSE(window->visible());
    EXPECT_EQ(stored("SaveOnExit"), "True");
    window->show();
    EXPECT_TRUE(window->visible());
}

TEST_F(Closing, ByCodeEndsTheWindowAndSavesToo) {
    EXPECT_TRUE(window->unload(forms::UnloadMode::byCode));
    EXPECT_FALSE(window->loaded());
    EXPECT_EQ(stored("SaveOnExit"), "True");
}

TEST_F(Closing, BySystemEndsTheWindowAndSavesToo) {
    EXPECT_TRUE(window->unload(forms::UnloadMode::bySystem));
    EXPECT_FALSE(window->loaded());
    EXPECT_EQ(stored("SaveOnExit"), "True");
}

// As when the database is locked just then.
TEST_F(Closing, KeepsTheStoredLayoutOfAGridThatCouldNotBeBuilt) {
    window->unload(forms::UnloadMode::byCode);
    host.iniFile.write("frmtabGridRCP", "tdbRM.Columns(\"VarRecipe\").Width", "1200", iniPath);
    host.iniFile.write("frmtabGridRCP", "tdbRMColOrders", ",3,2,1,0", iniPath);
    make();
    window->load();
    data->rstabRecipeMembers->setSource(recipe::memberQuery(recipe::rootKey));
    const auto failing = grid().rowsChanged.subscribe([] { throw Error(automation::errFail, "locked"); });
    EXPECT_THROW(window->bindGrid(), Error);
    ASSERT_FALSE(grid().columns().empty());
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("tdbRM.Columns(\"VarRecipe\").Width"), "1200");
    EXPECT_EQ(stored("tdbRMColOrders"), ",3,2,1,0");
}

TEST_F(Closing, SavesTheWholeLayout) {
    window->setWindowState(forms::WindowState::normal);
    window->move(300, 150, 9000, 4500);
    window->font().setSize(12);
    grid().font().setName("Courier");
    column("VarRecipe").setWidth(2500);
    grid().columnMoved(columnNumber("ChildID"), 2);
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("Me.WindowState"), "0");
    EXPECT_EQ(stored("Me.Width"), "9000");
    EXPECT_EQ(stored("Me.Height"), "4500");
    EXPECT_EQ(stored("Me.Font.Size"), "12");
    EXPECT_EQ(stored("tdbRM.Font.Name"), "Courier");
    EXPECT_EQ(stored("tdbRM.Columns(\"VarRecipe\").Width"), "2500");
    EXPECT_EQ(stored("tdbRMColOrders"), ",0,1,3,2");
    EXPECT_EQ(stored("LoadOnForeGround"), "True");
    EXPECT_EQ(stored("sb.Visible"), "True");
}

TEST_F(Closing, WritesTheSettingsFileOnce) {
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(host.iniFile.writes(), 1);
    EXPECT_EQ(stored("LoadOnForeGround"), "True");
}

TEST_F(Closing, TellsWhichEntryCannotBeSavedAndSavesTheOthers) {
    window->inits().WriteAValueToCInits(" ;k", Variant("text"));
    window->inits().WriteAValueToCInits("mine", Variant("text"));
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("LoadOnForeGround"), "True");
    EXPECT_EQ(stored("mine"), "text");
    EXPECT_EQ(messages(), (Texts{"-2147467259: This key cannot stand in an INI file:  ;k"}));
}

TEST_F(Closing, ComesBackWithTheSavedLayout) {
    window->setWindowState(forms::WindowState::normal);
    window->move(300, 150, 9000, 4500);
    column("VarRecipe").setWidth(2500);
    grid().columnMoved(columnNumber("ChildID"), 2);
    window->unload(forms::UnloadMode::byCode);
    make();
    open();
    EXPECT_EQ(window->windowState(), forms::WindowState::normal);
    EXPECT_EQ(window->width(), 9000);
    EXPECT_EQ(window->height(), 4500);
    EXPECT_EQ(column("VarRecipe").width(), 2500);
    EXPECT_EQ(column("ChildID").order(), 2);
    EXPECT_EQ(column("VarRecipe").order(), 3);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(Closing, WithoutSavingWritesThatChoiceAndNothingElse) {
    window->inits().WriteAValueToCInits("SaveOnExit", Variant(false));
    window->closeByFrame();
    EXPECT_EQ(host.iniFile.bytes(iniPath), "[frmtabGridRCP]\r\nSaveOnExit=False\r\n");
    EXPECT_FALSE(window->visible());
}

TEST_F(Closing, SavesAlsoWhenNothingSaysWhetherTo) {
    window->inits().DeleteAValueInCInits("SaveOnExit");
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("Me.WindowState"), "2");
    EXPECT_EQ(stored("SaveOnExit"), "(none)");
}

TEST_F(Closing, TakesAChoiceThatIsNotTrueForNo) {
    window->inits().WriteAValueToCInits("SaveOnExit", Variant("yes"));
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(host.iniFile.bytes(iniPath), "[frmtabGridRCP]\r\nSaveOnExit=False\r\n");
}

TEST_F(Closing, IsNotStoppedByASettingsFileThatCannotBeWritten) {
    host.iniFile.failWritesWith(Error(automation::errFail, "The disk is full."));
    EXPECT_TRUE(window->unload(forms::UnloadMode::byCode));
    EXPECT_FALSE(window->loaded());
    EXPECT_EQ(messages(), (Texts{"-2147467259: The disk is full."}));
    EXPECT_EQ(host.record.messages[0].title, "frmtabgrid: QueryUnload");
}

TEST_F(Closing, ByTheCloseBoxIsNotStoppedEither) {
    host.iniFile.failWritesWith(Error(automation::errFail, "The disk is full."));
    window->closeByFrame();
    EXPECT_FALSE(window->visible());
    EXPECT_TRUE(window->loaded());
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(Closing, AGridThatWasNeverBoundKeepsItsStoredOrder) {
    host.iniFile.setBytes(iniPath, "[frmtabGridRCP]\r\ntdbRMColOrders=,1,0,3,2\r\n");
    make();
    window->load();
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("tdbRMColOrders"), ",1,0,3,2");
    EXPECT_EQ(stored("tdbRM.Columns(\"VarRecipe\").Visible"), "True");
}

TEST_F(Closing, SavesNoNumberThatCouldNotBeAppliedAgain) {
    window->setWindowState(forms::WindowState::normal);
    window->move(-40000, 0, 57600, 30000);
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("Me.PosLeft"), "-32768");
    EXPECT_EQ(stored("Me.Width"), "32767");
    EXPECT_EQ(stored("Me.Height"), "30000");
    make();
    open();
    EXPECT_EQ(messages(), Texts{});
    EXPECT_EQ(window->width(), 32767);
}

TEST_F(Closing, SavesAfterTheDatabaseHasGone) {
    window->setDataEnvironment(nullptr);
    data->rstabRecipeMembers->close();
    data->CnnRecipes->close();
    EXPECT_TRUE(window->unload(forms::UnloadMode::byCode));
    EXPECT_EQ(stored("tdbRMColOrders"), ",0,1,2,3");
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(Closing, ByTheCloseBoxShowsAnEmbeddingEditFirst) {
    host.windows.setEmbeddingClass("MDIEdit");
    window->hide();
    std::vector<bool> visible;
    const auto watch = window->changed.subscribe([&](std::string_view property) {
        if (property == "Visible") visible.push_back(window->visible());
    });
    window->closeByFrame();
    EXPECT_EQ(visible, (std::vector<bool>{true, false}));
}

TEST_F(Closing, ByTheCloseBoxStoresBeforeItShowsAndTellsWhatCannotBeShown) {
    host.windows.setEmbeddingClass("MDIEdit");
    window->hide();
    std::vector<bool> whenStored;
    const auto view = grid().settleEvent.subscribe([&] { whenStored.push_back(window->visible()); });
    const auto failing = window->changed.subscribe([this](std::string_view property) {
        if (property == "Visible" && window->visible()) throw Error(automation::errFail, "No display.");
    });
    window->closeByFrame();
    EXPECT_EQ(whenStored, std::vector<bool>{false});
    EXPECT_EQ(messages(), (Texts{"-2147467259: No display."}));
    EXPECT_EQ(host.record.messages[0].title, "frmtabgrid: QueryUnload");
}

TEST_F(Closing, TellsWhatCannotBeSavedWhileTheWindowIsThere) {
    host.iniFile.failWritesWith(Error(automation::errFail, "The disk is full."));
    std::vector<bool> visible;
    host.script.onMessage = [&](const forms::ShownMessage& message) {
        visible.push_back(window->visible());
        return message.defaultButton;
    };
    window->closeByFrame();
    EXPECT_EQ(visible, std::vector<bool>{true});
}

TEST_F(Closing, KeepsTheStoredLayoutOfAGridThatCouldNotBeBuiltAgain) {
    host.iniFile.write("frmtabGridRCP", "tdbRMColOrders", ",3,2,1,0", iniPath);
    window->inits().LoadInits(iniPath);
    const auto failing = grid().rowsChanged.subscribe([] { throw Error(automation::errFail, "locked"); });
    EXPECT_THROW(window->bindGrid(), Error);
    window->unload(forms::UnloadMode::byCode);
    EXPECT_EQ(stored("tdbRMColOrders"), ",3,2,1,0");
}

TEST_F(Closing, ByTheCloseBoxMakesAnEmbeddingWindowVisibleFirst) {
    host.windows.setEmbeddingClass("Window");
    window->hide();
    std::vector<bool> visible;
    const auto watch = window->changed.subscribe([&](std::string_view property) {
        if (property == "Visible") visible.push_back(window->visible());
    });
    window->closeByFrame();
    EXPECT_EQ(visible, (std::vector<bool>{true, false}));
}

TEST_F(Closing, ByTheCloseBoxDoesNothingToAnEmbeddingOfAnotherClass) {
    host.windows.setEmbeddingClass("Frame");
    window->hide();
    bool shown = false;
    const auto watch = window->changed.subscribe([&](std::string_view) { shown = shown || window->visible(); });
    window->closeByFrame();
    EXPECT_FALSE(shown);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(Closing, ByCodeLeavesTheEmbeddingAlone) {
    window->hide();
    bool shown = false;
    const auto watch = window->changed.subscribe([&](std::string_view) { shown = shown || window->visible(); });
    window->unload(forms::UnloadMode::byCode);
    EXPECT_FALSE(shown);
}

TEST_F(Closing, AWindowThatIsNotEmbeddedIsJustHidden) {
    host.windows.setParent(window->handle(), -1);
    window->closeByFrame();
    EXPECT_FALSE(window->visible());
    EXPECT_EQ(messages(), Texts{});
}

}  // namespace
}  // namespace hx::editor
