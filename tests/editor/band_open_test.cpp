// SPDX-License-Identifier: MIT
#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;

struct OpeningABand : EditorWindow {
    OpeningABand() { open(); }
    bool opens(const std::string& band) { return window->abr->openBand(window->abr->band(Variant(band))); }
    [[nodiscard]] std::string shortcut(const std::string& name) const { return tool(name).shortcut(); }
};

TEST_F(OpeningABand, NeedsAToolThatIsEnabledAndVisible) {
    window->MenuSwitcher("RCPE0", false);
    EXPECT_TRUE(opens("mnuRecipe"));
    EXPECT_FALSE(opens("mnuRecipeMember")) << "the delete is visible, but disabled";
    EXPECT_TRUE(opens("mnuOption"));
    window->MenuSwitcher("RCPU1", false);
    EXPECT_FALSE(opens("mnuRecipe"));
    EXPECT_TRUE(opens("mnuRecipeMember"));
    tool("mnuRecipeMemberNewRecipe").setVisible(false);
    EXPECT_FALSE(opens("mnuRecipeMember")) << "enabled alone is not enough";
}

TEST_F(OpeningABand, NeverOpensTheCustomisationOfTheBar) {
    forms::Band& customise = window->abr->addBand("SysCustomize");
    customise.add("SysTool", forms::ToolKind::command).setCategory("Edit");
    window->abr->setLocalisation(43, "untouched");
    EXPECT_FALSE(opens("SysCustomize"));
    EXPECT_EQ(customise.tools()[0]->shortcut(), "");
    EXPECT_EQ(window->abr->localisation(43), "untouched");
}

TEST_F(OpeningABand, NamesTheModifierKeysInTheLanguage) {
    opens("mnuOption");
    EXPECT_EQ(window->abr->localisation(43), "Strg+");
    EXPECT_EQ(window->abr->localisation(44), "Umsch+");
    EXPECT_EQ(window->abr->localisation(42), "Alt+");
    useLanguage(english);
    opens("mnuOption");
    EXPECT_EQ(window->abr->localisation(43), "Ctrl+");
    EXPECT_EQ(window->abr->localisation(44), "Shift+");
    EXPECT_EQ(window->abr->localisation(42), "Alt+");
}

TEST_F(OpeningABand, NamesTheModifierKeysAlsoWhenNothingInItCanBeUsed) {
    window->MenuSwitcher("RCPE0", false);
    EXPECT_FALSE(opens("mnuRecipeMember"));
    EXPECT_EQ(window->abr->localisation(43), "Strg+");
}

TEST_F(OpeningABand, GivesItsToolsTheKeysOfTheirCategories) {
    EXPECT_EQ(shortcut("mnuRecipeNew"), "");
    opens("mnuRecipe");
    EXPECT_EQ(shortcut("mnuRecipeNew"), "F8");
    EXPECT_EQ(shortcut("mnuRecipeEdit"), "F9");
    EXPECT_EQ(shortcut("mnuRecipeDelete"), "Control+Delete");
    EXPECT_EQ(shortcut("mnuRecipeDescriptor"), "");
    EXPECT_EQ(window->abr->shortcutText(tool("mnuRecipeDelete")), "Strg+Delete");
}

TEST_F(OpeningABand, GivesKeysToTheOtherKnownCategories) {
    forms::Band& band = window->abr->band(Variant("mnuOption"));
    band.add("copy", forms::ToolKind::command).setCategory("Copy");
    band.add("paste", forms::ToolKind::command).setCategory("Paste");
    for (const char* name : {"copy", "paste"}) band.tool(Variant(name)).setEnabled(false);
    band.add("other", forms::ToolKind::command).setCategory("Other");
    opens("mnuOption");
    EXPECT_EQ(band.tool(Variant("copy")).shortcut(), "Control+C");
    EXPECT_EQ(band.tool(Variant("paste")).shortcut(), "Control+V");
    EXPECT_EQ(band.tool(Variant("other")).shortcut(), "");
    EXPECT_EQ(shortcut("mnuOptionReport"), "");
}

TEST_F(OpeningABand, GivesTheKeyOfNewOnlyToAnEnabledTool) {
    window->MenuSwitcher("RCPR1", false);
    opens("mnuRecipeMember");
    EXPECT_EQ(shortcut("mnuRecipeMemberNewVariable"), "F8");
    EXPECT_EQ(shortcut("mnuRecipeMemberNewRecipe"), "");
    EXPECT_EQ(shortcut("mnuRecipeMemberDelete"), "Control+Delete") << "also while it is disabled";
    window->MenuSwitcher("RCPU1", false);
    opens("mnuRecipeMember");
    EXPECT_EQ(shortcut("mnuRecipeMemberNewVariable"), "");
    EXPECT_EQ(shortcut("mnuRecipeMemberNewRecipe"), "F8");
    EXPECT_EQ(shortcut("mnuRecipeMemberEditSubRecipe"), "");
}

}  // namespace
}  // namespace hx::editor
