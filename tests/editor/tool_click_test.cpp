// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct ToolClick : EditorWindow {
    ToolClick() { open(); }
    void expectNothingHappened() {
        EXPECT_EQ(host.record.beeps, 0);
        EXPECT_EQ(messages(), Texts{});
        EXPECT_TRUE(host.record.components.empty());
        EXPECT_TRUE(host.record.modals.empty());
        EXPECT_EQ(addIn.refreshes, 0);
    }
};

TEST_F(ToolClick, RunsTheCommandOfItsTool) {
    struct Expected {
        const char* tool;
        const char* command;
    };
    noteCommands();
    window->MenuSwitcher("RCPE0", true);
    for (const Expected& row :
         {Expected{"mnuRecipeNew", "mnuRecipeFunc(0)"}, Expected{"mnuRecipeEdit", "mnuRecipeFunc(1)"},
          Expected{"mnuRecipeDelete", "mnuRecipeFunc(2)"}, Expected{"mnuRecipeMemberNewVariable", "mnuRecipeMember(0)"},
          Expected{"mnuRecipeMemberNewRecipe", "mnuRecipeMember(1)"},
          Expected{"mnuRecipeMemberDelete", "mnuRecipeMember(2)"},
          Expected{"mnuRecipeMemberEditSubRecipe", "mnuRecipeMember(3)"},
          Expected{"mnuOptionStatistik", "mnuOption(0)"}, Expected{"mnuOptionActualize", "mnuOption(2)"},
          Expected{"mnuOptionConfiguration", "mnuOption(5)"}, Expected{"mnuOptionOption", "mnuOption(6)"},
          Expected{"mnuOptionReport", "mnuOption(7)"}, Expected{"mnuShowEditor", "mnuShowEditor"}}) {
        commands.clear();
        tool(row.tool).setEnabled(false);
        host.record.beeps = 0;
        window->abr->click(row.tool);
        EXPECT_EQ(commands, Texts{}) << row.tool;
        EXPECT_EQ(host.record.beeps, 1) << row.tool;
        tool(row.tool).setEnabled(true);
        window->abr->click(row.tool);
        EXPECT_EQ(commands, (Texts{row.command}));
        EXPECT_EQ(host.record.beeps, 1) << row.tool;
    }
}

TEST_F(ToolClick, OnADisabledToolBeepsAndDoesNothingElse) {
    tool("mnuOptionActualize").setEnabled(false);
    window->abr->click("mnuOptionActualize");
    EXPECT_EQ(host.record.beeps, 1);
    EXPECT_EQ(addIn.refreshes, 0);
}

TEST_F(ToolClick, OnRefreshAsksTheAddIn) {
    window->abr->click("mnuOptionActualize");
    EXPECT_EQ(addIn.refreshes, 1);
    EXPECT_EQ(host.record.beeps, 0);
}

TEST_F(ToolClick, OnRefreshMayEndTheWindow) {
    addIn.onRefresh = [this] {
        window->unload(forms::UnloadMode::byCode);
        window.reset();
    };
    std::weak_ptr<forms::Bar> bar = window->abr;
    bar.lock()->click("mnuOptionActualize");
    EXPECT_EQ(addIn.refreshes, 1);
    EXPECT_EQ(window, nullptr);
}

TEST_F(ToolClick, OnStatisticCountsRecipesAndMembers) {
    window->abr->click("mnuOptionStatistik");
    EXPECT_EQ(window->sb->panel(1).text(), "Func:Statistik");
}

TEST_F(ToolClick, OnConfigurationRunsOptionFive) {
    window->abr->click("mnuOptionConfiguration");
    EXPECT_EQ(host.record.components, (Texts{"HXRecipeServerConfig.Connect"}));
}

TEST_F(ToolClick, OnReportRunsOptionSeven) {
    window->abr->click("mnuOptionReport");
    EXPECT_EQ(host.record.components, (Texts{"HXProjectReport.Connect"}));
}

TEST_F(ToolClick, OnShowEditorBringsTheWindowToTheFront) {
    window->hide();
    window->MenuSwitcher("RCPE0", true);
    const auto watched = window->changed.subscribe([this](std::string_view property) {
        if (property != "Visible") return;
        EXPECT_EQ(host.record.broughtToFront, Texts{}) << "only what is shown can be raised";
        throw automation::Error(automation::errFail, "No display.");
    });
    window->abr->click("mnuShowEditor");
    EXPECT_EQ(messages(), (Texts{"-2147467259: No display."}));
    EXPECT_EQ(host.record.messages[0].title, "mnuShowEditor");
    window->abr->click("mnuShowEditor");
    EXPECT_TRUE(window->visible());
    EXPECT_EQ(host.record.broughtToFront, (Texts{"frmtabgrid"}));
}

TEST_F(ToolClick, OnACommandThatDoesNotExistDoesNothing) {
    make();
    open();
    for (const std::int16_t number : {std::int16_t{-1}, std::int16_t{1}, std::int16_t{99}})
        window->commands().mnuOption(number);
    expectNothingHappened();
}

TEST_F(ToolClick, OnAToolOfAnotherNameDoesNothing) {
    forms::Tool stranger("mnuStranger", forms::ToolKind::command);
    window->abr_ToolClick(stranger);
    window->abr->click("mnuOptions");
    window->abr->click("mnuRecipeDescriptor");
    expectNothingHappened();
}

TEST_F(ToolClick, OptionsOneThreeAndFourDoNothing) {
    for (const std::int16_t index : std::initializer_list<std::int16_t>{1, 3, 4, -1, 8})
        window->commands().mnuOption(index);
    expectNothingHappened();
}

TEST_F(ToolClick, UnknownNumbersOfRecipeAndMemberCommandsDoNothing) {
    for (const std::int16_t index : std::initializer_list<std::int16_t>{-1, 99}) {
        window->commands().mnuRecipeFunc(index);
        window->commands().mnuRecipeMember(index);
    }
    expectNothingHappened();
    EXPECT_EQ(memberCount(), 6U);
}

}  // namespace
}  // namespace hx::editor
