// SPDX-License-Identifier: MIT
#include <array>

#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

/// What a tool is after a switch.
struct Expected {
    const char* tool;
    bool enabled;
    bool visible;
};

struct MenuSwitcher : EditorWindow {
    MenuSwitcher() { open(); }

    void expectTools(const std::vector<Expected>& rows) {
        for (const Expected& row : rows) {
            EXPECT_EQ(tool(row.tool).enabled(), row.enabled) << row.tool << " enabled";
            EXPECT_EQ(tool(row.tool).visible(), row.visible) << row.tool << " visible";
        }
    }
    [[nodiscard]] Texts mainTools() const {
        Texts names;
        for (const auto& each : window->abr->mainBand().tools()) names.push_back(each->name());
        return names;
    }
};

constexpr bool on = true, off = false;

const std::vector<Expected> optionTools = {
    {"mnuOptions", on, on},      {"mnuOptionActualize", on, on},     {"mnuOptionStatistik", on, on},
    {"mnuOptionOption", on, on}, {"mnuOptionConfiguration", on, on}, {"mnuOptionReport", on, on},
};

TEST_F(MenuSwitcher, OffersNewRecipesAndOptionsForTheRoot) {
    window->MenuSwitcher("RCPE0", false);
    expectTools({
        {"mnuRecipes", on, on},
        {"mnuRecipeMembers", off, on},
        {"mnuRecipeDescriptor", on, off},
        {"mnuRecipeNew", on, on},
        {"mnuRecipeEdit", off, off},
        {"mnuRecipeDelete", off, off},
        {"mnuRecipeMemberDescriptor", on, off},
        {"mnuRecipeMemberNewVariable", off, off},
        {"mnuRecipeMemberNewRecipe", off, off},
        {"mnuRecipeMemberEditSubRecipe", off, off},
        {"mnuRecipeMemberDelete", off, on},
    });
    expectTools(optionTools);
}

TEST_F(MenuSwitcher, OffersEditDeleteAndVariablesForARecipe) {
    show(mixKey);
    window->MenuSwitcher(mixKey, false);
    expectTools({
        {"mnuRecipes", on, on},
        {"mnuRecipeMembers", on, on},
        {"mnuRecipeDescriptor", on, off},
        {"mnuRecipeNew", off, off},
        {"mnuRecipeEdit", on, on},
        {"mnuRecipeDelete", on, on},
        {"mnuRecipeMemberDescriptor", on, off},
        {"mnuRecipeMemberNewVariable", on, on},
        {"mnuRecipeMemberNewRecipe", off, off},
        {"mnuRecipeMemberEditSubRecipe", off, off},
        {"mnuRecipeMemberDelete", off, on},
    });
    expectTools(optionTools);
}

TEST_F(MenuSwitcher, OffersSubRecipesForTheFolderOfSubRecipes) {
    show(mixSubRecipes);
    window->MenuSwitcher(mixSubRecipes, false);
    expectTools({
        {"mnuRecipes", off, on},
        {"mnuRecipeMembers", on, on},
        {"mnuRecipeDescriptor", on, off},
        {"mnuRecipeNew", off, off},
        {"mnuRecipeEdit", off, off},
        {"mnuRecipeDelete", off, off},
        {"mnuRecipeMemberDescriptor", on, off},
        {"mnuRecipeMemberNewVariable", off, off},
        {"mnuRecipeMemberNewRecipe", on, on},
        {"mnuRecipeMemberEditSubRecipe", on, on},
        {"mnuRecipeMemberDelete", off, on},
    });
    expectTools(optionTools);
}

TEST_F(MenuSwitcher, OffersOnlyOptionsForANodeOfAnotherAddIn) {
    show(mixKey);
    selectRows({0});
    window->MenuSwitcher("VARS7", false);
    expectTools({
        {"mnuRecipes", off, on},
        {"mnuRecipeMembers", off, on},
        {"mnuRecipeDescriptor", on, off},
        {"mnuRecipeNew", off, off},
        {"mnuRecipeEdit", off, off},
        {"mnuRecipeDelete", off, off},
        {"mnuRecipeMemberDescriptor", on, off},
        {"mnuRecipeMemberNewVariable", off, off},
        {"mnuRecipeMemberNewRecipe", off, off},
        {"mnuRecipeMemberEditSubRecipe", off, off},
        {"mnuRecipeMemberDelete", off, on},
    });
    expectTools(optionTools);
}

TEST_F(MenuSwitcher, ShowsTheTitleLinesInContextMenusOfTheirNodes) {
    struct Titles {
        std::string key;
        bool recipe, member;
    };
    for (const Titles& row : {Titles{"RCPE0", true, false}, Titles{"RCPR1", true, true}, Titles{"RCPU1", false, true},
                              Titles{"VARS1", false, false}}) {
        window->MenuSwitcher(row.key, true);
        EXPECT_EQ(tool("mnuRecipeDescriptor").visible(), row.recipe) << row.key;
        EXPECT_EQ(tool("mnuRecipeMemberDescriptor").visible(), row.member) << row.key;
    }
}

TEST_F(MenuSwitcher, EnablesTheMemberDeleteOnlyWithASelectedRow) {
    for (const std::string& key : {mixKey, mixSubRecipes}) {
        show(key);
        window->MenuSwitcher(key, false);
        EXPECT_FALSE(tool("mnuRecipeMemberDelete").enabled()) << key;
        selectRows({0});
        window->MenuSwitcher(key, false);
        EXPECT_TRUE(tool("mnuRecipeMemberDelete").enabled()) << key;
    }
}

TEST_F(MenuSwitcher, HidesTheEditOfASubRecipeWithoutACurrentRow) {
    show("RCPU3");
    ASSERT_EQ(grid().rowCount(), 0);
    window->MenuSwitcher("RCPU3", false);
    EXPECT_FALSE(tool("mnuRecipeMemberEditSubRecipe").visible());
    EXPECT_FALSE(tool("mnuRecipeMemberEditSubRecipe").enabled());
}

TEST_F(MenuSwitcher, EnablesWhatIsAlwaysOffered) {
    const Texts always = {"mnuOptions", "mnuOptionActualize", "mnuOptionOption", "mnuOptionReport"};
    for (const std::string& name : always) tool(name).setEnabled(false);
    window->MenuSwitcher("RCPE0", false);
    for (const std::string& name : always) EXPECT_TRUE(tool(name).enabled()) << name;
}

TEST_F(MenuSwitcher, MayBeginWithAContextMenu) {
    make();
    window->MenuSwitcher("RCPR1", true);
    EXPECT_EQ(mainTools().size(), 5U);
}

TEST_F(MenuSwitcher, TreatsAKeyWithoutANumberByItsType) {
    window->MenuSwitcher("RCPE", false);
    EXPECT_TRUE(tool("mnuRecipeNew").enabled());
    window->MenuSwitcher("RCP", false);
    EXPECT_FALSE(tool("mnuRecipes").enabled());
}

TEST_F(MenuSwitcher, AppendsTheEntryOfTheEditorOnceAndRemovesIt) {
    const Texts plain = {"mnuRecipes", "mnuRecipeMembers", "mnuOptions"};
    const Texts extended = {"mnuRecipes", "mnuRecipeMembers", "mnuOptions", "mnuShowEditorSep", "mnuShowEditor"};
    EXPECT_EQ(mainTools(), plain);
    window->MenuSwitcher("RCPE0", true);
    EXPECT_EQ(mainTools(), extended);
    EXPECT_EQ(tool("mnuShowEditor").caption(), "Editor anzeigen");
    window->MenuSwitcher("RCPR1", true);
    EXPECT_EQ(mainTools(), extended);
    window->MenuSwitcher("RCPR1", false);
    EXPECT_EQ(mainTools(), plain);
    window->MenuSwitcher("RCPR1", false);
    EXPECT_EQ(mainTools(), plain);
    EXPECT_EQ(window->abr->band(Variant("mnuShowEditorHelper")).tools().size(), 2U);
}

TEST_F(MenuSwitcher, DisablesTheStatisticWithoutAStatusLineAtTheNextSwitch) {
    window->sb->setVisible(false);
    EXPECT_TRUE(tool("mnuOptionStatistik").enabled());
    window->MenuSwitcher("RCPE0", false);
    EXPECT_FALSE(tool("mnuOptionStatistik").enabled());
    EXPECT_TRUE(tool("mnuOptionStatistik").visible());
    window->sb->setVisible(true);
    window->MenuSwitcher("RCPE0", false);
    EXPECT_TRUE(tool("mnuOptionStatistik").enabled());
}

TEST_F(MenuSwitcher, LeavesTheConfigurationAlone) {
    tool("mnuOptionConfiguration").setEnabled(false);
    tool("mnuOptionConfiguration").setVisible(false);
    window->MenuSwitcher("RCPE0", false);
    EXPECT_FALSE(tool("mnuOptionConfiguration").enabled());
    EXPECT_FALSE(tool("mnuOptionConfiguration").visible());
}

TEST_F(MenuSwitcher, FailsForItsCallerWhenAToolIsMissing) {
    window->abr->band(Variant("mnuRecipe")).remove("mnuRecipeEdit");
    EXPECT_THROW(window->MenuSwitcher("RCPE0", false), automation::Error);
}

TEST_F(MenuSwitcher, RunsAgainBeforeTheMenuOfTheMembersOpens) {
    show(mixKey);
    window->MenuSwitcher(mixKey, true);
    selectRows({1});
    EXPECT_FALSE(tool("mnuRecipeMemberDelete").enabled());
    window->abr->menuOpening(tool("mnuRecipes"));
    EXPECT_FALSE(tool("mnuRecipeMemberDelete").enabled());
    window->abr->menuOpening(tool("mnuRecipeMembers"));
    EXPECT_TRUE(tool("mnuRecipeMemberDelete").enabled());
    EXPECT_FALSE(tool("mnuRecipeMemberDescriptor").visible());
    EXPECT_EQ(mainTools().size(), 3U);
}

}  // namespace
}  // namespace hx::editor
