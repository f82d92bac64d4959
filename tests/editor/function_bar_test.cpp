// SPDX-License-Identifier: MIT
#include "editor/function_bar.h"

#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct ToolBarButtons : EditorWindow {
    ToolBarButtons() { open(); }
    [[nodiscard]] forms::ToolButton& button(const char* key) const { return window->tbrfunc->button(Variant(key)); }
    void expectButtons(bool create, bool edit, bool remove) {
        EXPECT_EQ(button("New").enabled(), create);
        EXPECT_EQ(button("Edit").enabled(), edit);
        EXPECT_EQ(button("Delete").enabled(), remove);
        EXPECT_TRUE(button("Refresh").enabled());
    }
    void click(const char* key) { window->tbrfunc->click(button(key)); }
};

void expectDrawn(const std::string& svg, const std::string& shape) {
    EXPECT_TRUE(svg.starts_with("<svg ")) << svg;
    EXPECT_TRUE(svg.ends_with("</svg>")) << svg;
    EXPECT_NE(svg.find(shape), std::string::npos) << svg;
}

TEST_F(ToolBarButtons, StandInTheirOrderWithPictures) {
    Texts keys;
    for (const auto& each : window->tbrfunc->buttons()) {
        keys.push_back(each->key());
        expectDrawn(each->picture().svg, "<path stroke=\"#");
    }
    EXPECT_EQ(keys, (Texts{"New", "Edit", "Delete", "Refresh"}));
    expectDrawn(column("VarRecipe").buttonPicture().svg, "<circle ");
    EXPECT_TRUE(button("Refresh").separatorBefore);
    EXPECT_FALSE(button("Delete").separatorBefore);
}

TEST_F(ToolBarButtons, BeepWhenThereIsNothingForThem) {
    window->MenuSwitcher("RCPE0", false);
    window->tbrfunc->buttonClickEvent.raise(button("Edit"));
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(messages(), Texts{});
}

TEST_F(ToolBarButtons, TheBinKeepsMeaningTheRecipeWhileNobodyTurnsToItsRows) {
    window->showNode(mixKey);
    window->explorerUsed();
    grid().setRow(1);
    grid().focusEvent.raise(false);
    selectRows({});
    EXPECT_EQ(button("Delete").toolTipText(), "Löschen: Rezept Mix");
    click("Delete");
    EXPECT_EQ(grid().selectedRows().count(), 0);
    EXPECT_EQ(messages().size(), 1U) << "the question";
}

TEST_F(ToolBarButtons, OnlyTheBinSelectsTheRowThatItMeans) {
    show(mixSubRecipes);
    grid().setRow(0);
    grid().focusEvent.raise(true);
    click("New");
    EXPECT_EQ(grid().selectedRows().count(), 0);
}

TEST_F(ToolBarButtons, TellWhatFailsUnderTheirName) {
    show(mixKey);
    window->abr->band(Variant("mnuRecipe")).remove("mnuRecipeEdit");
    click("New");
    ASSERT_EQ(messages().size(), 1U);
    EXPECT_EQ(host.record.messages[0].title, "tbrfunc_ButtonClick");
}

TEST_F(ToolBarButtons, FollowTheNode) {
    window->MenuSwitcher("RCPE0", false);
    expectButtons(true, false, false);
    window->MenuSwitcher(mixKey, false);
    expectButtons(true, true, true);
    window->MenuSwitcher(mixSubRecipes, false);
    expectButtons(true, false, false);
    window->MenuSwitcher("VARS1", false);
    expectButtons(false, false, false);
}

TEST_F(ToolBarButtons, AreDisabledBeforeTheFirstNode) {
    make();
    window->load();
    expectButtons(false, false, false);
}

TEST_F(ToolBarButtons, FollowTheRowsOfTheGridWithoutTouchingTheMenus) {
    show(mixSubRecipes);
    EXPECT_TRUE(button("Edit").enabled()) << "there is a current row";
    EXPECT_FALSE(button("Delete").enabled());
    tool("mnuRecipeMemberEditSubRecipe").setEnabled(false);
    selectRows({1});
    EXPECT_TRUE(button("Delete").enabled());
    EXPECT_FALSE(tool("mnuRecipeMemberDelete").enabled());
    EXPECT_FALSE(tool("mnuRecipeMemberEditSubRecipe").enabled());
}

TEST_F(ToolBarButtons, TellWhatTheyRun) {
    show(mixKey);
    EXPECT_EQ(button("New").toolTipText(), "Variablen hinzufügen/löschen");
    EXPECT_EQ(button("Edit").toolTipText(), "Bearbeiten");
    EXPECT_EQ(button("Refresh").toolTipText(), "Ansicht aktualisieren");
    show(mixSubRecipes);
    EXPECT_EQ(button("New").toolTipText(), "Neues Unterrezept");
    show("RCPE");
    EXPECT_EQ(button("New").toolTipText(), "Neu");
}

TEST_F(ToolBarButtons, TellItInEnglish) {
    useLanguage(english);
    make();
    open();
    EXPECT_EQ(button("New").toolTipText(), "New");
    EXPECT_EQ(button("Refresh").toolTipText(), "Actualize Database Connection");
}

TEST_F(ToolBarButtons, RunTheFirstToolThatCanBeUsed) {
    struct Expected {
        std::string key;
        Texts commands;  // of New, Edit, Delete without and with selected rows, Refresh
    };
    noteCommands();
    for (const Expected& row :
         {Expected{"RCPE", {"mnuRecipeFunc(0)", "mnuOption(2)"}},
          Expected{
              mixKey,
              {"mnuRecipeMember(0)", "mnuRecipeFunc(1)", "mnuRecipeFunc(2)", "mnuRecipeMember(2)", "mnuOption(2)"}},
          Expected{mixSubRecipes,
                   {"mnuRecipeMember(1)", "mnuRecipeMember(3)", "mnuRecipeMember(2)", "mnuOption(2)"}}}) {
        show(row.key);
        commands.clear();
        for (const char* key : {"New", "Edit", "Delete"}) click(key);
        if (grid().rowCount() != 0) selectRows({0});
        click("Delete");
        window->explorerUsed();
        click("Refresh");
        EXPECT_EQ(commands, row.commands) << row.key;
    }
    EXPECT_EQ(host.record.beeps, 0);
}

/// The bin, in the recipe "Mix" unless told otherwise.
struct BinButton : ToolBarButtons {
    BinButton() { window->showNode(mixKey); }
    [[nodiscard]] std::string tip() const { return button("Delete").toolTipText(); }
    void answer(forms::message::Answer answer) {
        host.script.onMessage = [answer](const forms::ShownMessage&) { return answer; };
    }
};

TEST_F(BinButton, MeansTheExplorersNodeUntilTheUserIsInTheGrid) {
    EXPECT_EQ(tip(), "Löschen: Rezept Mix");
    grid().setFocus();
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Level");
    grid().focusChanged(false);
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Level") << "he is in a message box, say";
    window->explorerUsed();
    EXPECT_EQ(tip(), "Löschen: Rezept Mix");
    selectRows({0});
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Level");
    forms::KeyEvent altF6{forms::key::f6, forms::shift::alt};
    window->onKeyDown(altF6);
    EXPECT_EQ(tip(), "Löschen: Rezept Mix") << "the keyboard is in the explorer, though a row is selected";
}

TEST_F(BinButton, DeletesTheCurrentRowWhereTheKeyboardIsInTheGrid) {
    answer(forms::message::Answer::yes);
    grid().setFocus();
    grid().setRow(1);
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Temp");
    click("Delete");
    ASSERT_EQ(host.record.messages.size(), 1U);
    EXPECT_EQ(host.record.messages[0].text, "Wollen Sie wirklich die selektierten Rezeptelemente löschen ?");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level", "Pump.Speed"}));
    EXPECT_NE(window->recipeName(mixKey), "") << "the recipe stays";
}

TEST_F(BinButton, DeletesTheSelectedRowsRatherThanTheCurrentOne) {
    answer(forms::message::Answer::yes);
    grid().setFocus();
    grid().setRow(0);
    selectRows({1});
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Temp");
    selectRows({1, 2});
    EXPECT_EQ(tip(), "Löschen: 2 Rezeptelemente");
    click("Delete");
    EXPECT_EQ(shown("VarRecipe"), (Texts{"Tank.Level"}));
}

TEST_F(BinButton, DeletesTheRecipeWhereTheKeyboardIsInTheExplorer) {
    noteCommands();
    selectRows({0});
    window->explorerUsed();
    click("Delete");
    EXPECT_EQ(commands, (Texts{"mnuRecipeFunc(2)"}));
}

TEST_F(BinButton, StaysWithTheExplorerWhenTheSelectionIsTakenBack) {
    selectRows({0});
    window->explorerUsed();
    grid().selectedRows().clear();
    EXPECT_EQ(tip(), "Löschen: Rezept Mix");
}

TEST_F(BinButton, NamesOnlyTheKindOfARowWithoutAName) {
    addMember(mix, "");
    window->refreshMembers();
    selectRows({3});
    EXPECT_EQ(tip(), "Löschen: Rezeptelement");
}

TEST_F(BinButton, DeletesSelectedRowsAlsoWhereTheCurrentOneIsNew) {
    grid().setAddNewMode(true);
    selectRows({1});
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Tank.Temp");
    EXPECT_TRUE(button("Delete").enabled());
}

TEST_F(BinButton, DeletesNoRowsUnderANodeWithoutMembers) {
    grid().setFocus();
    window->MenuSwitcher("VARS1", false);
    EXPECT_FALSE(button("Delete").enabled());
}

TEST_F(BinButton, NamesASubRecipe) {
    window->showNode(mixSubRecipes);
    EXPECT_FALSE(button("Delete").enabled()) << "the node itself cannot be deleted";
    EXPECT_EQ(tip(), "Löschen");
    grid().setFocus();
    EXPECT_EQ(tip(), "Löschen: Unterrezept Sirup");
}

TEST_F(BinButton, FollowsTheNameOfTheRowAndOfTheRecipe) {
    grid().setFocus();
    type(0, "Pump.State");
    EXPECT_EQ(tip(), "Löschen: Rezeptelement Pump.State");
    window->explorerUsed();
    window->MakeMyCaption(mixKey, "Mix 2");
    EXPECT_EQ(tip(), "Löschen: Rezept Mix 2");
}

TEST_F(BinButton, IsDisabledWhereTheGridHasNoRow) {
    window->showNode("RCPR" + std::to_string(water));
    grid().setFocus();
    EXPECT_FALSE(button("Delete").enabled());
    window->explorerUsed();
    EXPECT_TRUE(button("Delete").enabled());
}

TEST_F(BinButton, StaysWithTheExplorerWhenTheSelectedRowsAreReadAgain) {
    selectRows({0});
    window->explorerUsed();
    window->refreshMembers();
    EXPECT_EQ(grid().selectedRows().count(), 1);
    EXPECT_EQ(tip(), "Löschen: Rezept Mix");
}

TEST_F(BinButton, TellsItInEnglish) {
    useLanguage(english);
    make();
    open();
    window->showNode(mixKey);
    EXPECT_EQ(tip(), "Delete: Recipe Mix");
    selectRows({0, 1});
    EXPECT_EQ(tip(), "Delete: 2 Recipe Members");
}

TEST_F(ToolBarButtons, RefreshMayEndTheWindow) {
    addIn.onRefresh = [this] { window.reset(); };
    const auto bar = window->tbrfunc;
    click("Refresh");
    EXPECT_EQ(window, nullptr);
}

TEST_F(ToolBarButtons, RefreshTheMenusBeforeTheyRunATool) {
    show(mixKey);
    noteCommands();
    selectRows({0});
    EXPECT_FALSE(tool("mnuRecipeMemberDelete").enabled());
    click("Delete");
    EXPECT_TRUE(tool("mnuRecipeMemberDelete").enabled());
    EXPECT_EQ(window->abr->mainBand().find("mnuShowEditor"), nullptr) << "an entry of the context menu";
    EXPECT_EQ(commands, (Texts{"mnuRecipeMember(2)"}));
}

TEST_F(ToolBarButtons, DoNothingWhileDisabled) {
    window->MenuSwitcher("RCPE0", false);
    click("Delete");
    EXPECT_EQ(host.record.beeps, 0);
    EXPECT_EQ(messages(), Texts{});
}

TEST(PlainCaption, HasNoAccessKeysAndNoBlanksAtTheEnds) {
    EXPECT_EQ(plainCaption("&Variablen hinzufügen/löschen        "), "Variablen hinzufügen/löschen");
    EXPECT_EQ(plainCaption("Rezept&elemente"), "Rezeptelemente");
    EXPECT_EQ(plainCaption("Save && &Close"), "Save & Close");
    EXPECT_EQ(plainCaption("Open&"), "Open");
    EXPECT_EQ(plainCaption(""), "");
}

}  // namespace
}  // namespace hx::editor
