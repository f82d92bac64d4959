// SPDX-License-Identifier: MIT
#include <array>

#include "editor_window.h"

namespace hx::editor {
namespace {

using automation::Variant;
using enum forms::ToolKind;

struct ExpectedTool {
    const char* band;
    const char* name;
    forms::ToolKind kind;
    const char* opens;
    std::int32_t resource;
    const char* german;
    const char* english;
    const char* category;
};

constexpr auto expected = std::to_array<ExpectedTool>({
    {"mnuMain", "mnuRecipes", menu, "mnuRecipe", 202, "&Rezepte", "&Recipes", ""},
    {"mnuMain", "mnuRecipeMembers", menu, "mnuRecipeMember", 210, "Rezept&elemente", "Recipe &Members", ""},
    {"mnuMain", "mnuOptions", menu, "mnuOption", 220, "&Optionen", "&Options", ""},
    {"mnuRecipe", "mnuRecipeDescriptor", title, "", 203, "Rezept", "Recipe", ""},
    {"mnuRecipe", "mnuRecipeNew", command, "", 204, "&Neu", "&New", "New"},
    {"mnuRecipe", "mnuRecipeEdit", command, "", 205, "&Bearbeiten", "&Edit", "Edit"},
    {"mnuRecipe", "mnuRecipeDelete", command, "", 206, "&Löschen", "&Delete", "Delete"},
    {"mnuRecipeMember", "mnuRecipeMemberDescriptor", title, "", 211, "Rezeptelement", "Recipe Member", ""},
    {"mnuRecipeMember", "mnuRecipeMemberNewVariable", command, "", 212, "&Variablen hinzufügen/löschen        ",
     "Add/Delete Variable", "New"},
    {"mnuRecipeMember", "mnuRecipeMemberNewRecipe", command, "", 215, "Neues &Unterrezept", "&New Sub Recipe", "New"},
    {"mnuRecipeMember", "mnuRecipeMemberEditSubRecipe", command, "", 213, "&Bearbeiten", "&Edit", ""},
    {"mnuRecipeMember", "mnuRecipeMemberDelete", command, "", 214, "&Löschen", "&Delete", "Delete"},
    {"mnuOption", "mnuOptionActualize", command, "", 221, "Ansicht aktualisieren", "&Actualize Database Connection",
     ""},
    {"mnuOption", "mnuOptionsSep0", separator, "", 0, "", "", ""},
    {"mnuOption", "mnuOptionStatistik", command, "", 222, "Statistik", "Statistic", ""},
    {"mnuOption", "mnuOptionSep1", separator, "", 0, "", "", ""},
    {"mnuOption", "mnuOptionConfiguration", command, "", 225, "Konfiguration", "Configuration", ""},
    {"mnuOption", "mnuOptionOption", command, "", 223, "Optionen", "Options", ""},
    {"mnuOption", "mnuOptionReport", command, "", 224, "Report", "Report", ""},
    {"mnuShowEditorHelper", "mnuShowEditorSep", separator, "", 0, "", "", ""},
    {"mnuShowEditorHelper", "mnuShowEditor", command, "", 226, "Editor anzeigen", "Show Editor", ""},
});

struct TheBar : EditorWindow {
    void expectCaptions(const char* ExpectedTool::*caption) {
        for (const ExpectedTool& row : expected) {
            const auto& found = window->abr->band(Variant(row.band)).tool(Variant(row.name));
            EXPECT_EQ(found.caption(), row.*caption) << row.name;
        }
    }
};

TEST_F(TheBar, HasItsBandsAndToolsInTheirOrder) {
    std::size_t row = 0;
    for (const auto& band : window->abr->bands()) {
        for (const auto& tool : band->tools()) {
            ASSERT_LT(row, expected.size()) << tool->name();
            EXPECT_EQ(band->name(), expected[row].band) << tool->name();
            EXPECT_EQ(tool->name(), expected[row].name);
            EXPECT_EQ(tool->kind(), expected[row].kind) << tool->name();
            EXPECT_EQ(tool->subBand(), expected[row].opens) << tool->name();
            EXPECT_EQ(tool->resourceId(), expected[row].resource) << tool->name();
            EXPECT_EQ(tool->category(), expected[row].category) << tool->name();
            ++row;
        }
    }
    EXPECT_EQ(row, expected.size());
    EXPECT_EQ(window->abr->mainBand().name(), "mnuMain");
}

TEST_F(TheBar, HasNoTextsBeforeTheWindowIsLoaded) {
    for (const ExpectedTool& row : expected) {
        EXPECT_EQ(window->abr->band(Variant(row.band)).tool(Variant(row.name)).caption(), "") << row.name;
    }
}

TEST_F(TheBar, SpeaksGerman) {
    open();
    expectCaptions(&ExpectedTool::german);
}

TEST_F(TheBar, SpeaksEnglish) {
    useLanguage(english);
    open();
    expectCaptions(&ExpectedTool::english);
}

}  // namespace
}  // namespace hx::editor
