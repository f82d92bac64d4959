// SPDX-License-Identifier: MIT
#include "resources/resource_table.h"

#include <array>
#include <gtest/gtest.h>
#include <set>

#include "adapters/headless/memory_registry.h"

namespace hx::resources {
namespace {

constexpr std::int32_t german = 1031;
constexpr std::int32_t english = 1033;

headless::MemoryRegistry registryWith(std::int32_t language) {
    headless::MemoryRegistry registry;
    registry.writeNumber(host::registry_keys::helvix, "LCID", language);
    return registry;
}

ResourceTable tableFor(std::int32_t language) {
    ResourceTable table;
    table.InitResources(registryWith(language));
    return table;
}

struct Texts {
    std::int32_t id;
    std::string_view german, english;

    friend void PrintTo(const Texts& texts, std::ostream* stream) { *stream << texts.id; }
};

constexpr auto allTexts = std::to_array<Texts>({
    {10, "OK", "OK"},
    {11, "Abbrechen", "Cancel"},
    {12, "&Hilfe", "&Help"},
    {30, "Strg+", "Ctrl+"},
    {31, "Umsch+", "Shift+"},
    {32, "Alt+", "Alt+"},
    {102, "Rezepte", "Recipes"},
    {103, "Unterrezepte", "Sub Recipes"},
    {202, "&Rezepte", "&Recipes"},
    {203, "Rezept", "Recipe"},
    {204, "&Neu", "&New"},
    {205, "&Bearbeiten", "&Edit"},
    {206, "&Löschen", "&Delete"},
    {210, "Rezept&elemente", "Recipe &Members"},
    {211, "Rezeptelement", "Recipe Member"},
    {212, "&Variablen hinzufügen/löschen        ", "Add/Delete Variable"},
    {213, "&Bearbeiten", "&Edit"},
    {214, "&Löschen", "&Delete"},
    {215, "Neues &Unterrezept", "&New Sub Recipe"},
    {220, "&Optionen", "&Options"},
    {221, "Ansicht aktualisieren", "&Actualize Database Connection"},
    {222, "Statistik", "Statistic"},
    {223, "Optionen", "Options"},
    {224, "Report", "Report"},
    {225, "Konfiguration", "Configuration"},
    {226, "Editor anzeigen", "Show Editor"},
    {301, "Variable", "Variable"},
    {302, "Unterrezept", "Sub Recipe"},
    {303, "Dateiname", "File Name"},
    {401, "HelvixStudio Rezepteditor", "HelvixStudio Recipe Editor"},
    {402, ": ", ": "},
    {410, "Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?",
     "You really want to delete this Recipe and all included Elements ?"},
    {411, "Wollen Sie wirklich die selektierten Rezeptelemente löschen ?",
     "You really want to delete the selected Elements"},
    {421, "Func:", "Func:"},
    {422, "Rezepte:", "Recipes"},
    {423, "Rezeptelemente", "Recipe Members"},
    {500, "Unterrezept auswählen", "Select Sub Recipe"},
    {501, "&Unterrezept", "&SubRecipe"},
    {502, "&Dateiname", "&File Name"},
    {510, "Es muss ein gültiges Unterrezept und ein Item für den Dateinamen gewählt werden",
     "Please choose a valid SubRecipe and an Item which describes the File Name"},
    {511, "Es muss ein gültiges Unterrezept gewählt werden", "Please choose a valid SubRecipe"},
    {550, "Initialisierung Unterrezeptdialog fehlgeschlagen", "Error: Initializing SubRecipe Dalog"},
    {551, "Zurückschreiben Unterrezeptdialog fehlgeschlagen", "Error: Write Back SubRecipe Dalog"},
    {600, "FRECIPE", "FRECIPE"},
    {601, "Standard", "Standard"},
    {602, "Erweitert", "Extended"},
    {603, "Name", "Name"},
    {604, "Rezeptdateiname", "Recipe File Name"},
    {605, "Dateiendung", "File Extension"},
    {606, "Kommentar", "Comment"},
    {607, "Erweitert", "Extended"},
    {608, "Beschreibungsvariable", "Description Variable"},
    {609, "Ladetrigger", "Load Trigger"},
    {610, "Bitnummer", "Bitnumber"},
    {611, "Speichertrigger", "Save Trigger"},
    {612, "Lesetrigger", "Read Trigger"},
    {613, "Schreibtrigger", "Write Trigger"},
    {614, "Automatisch laden", "automatic Save"},
    {615, "Definition &aktiv", "Definition &active"},
    {621, "Rezeptdefinition", "Recipe Definition"},
    {622, "Rezeptdateipfad", "Recipe File Path"},
    {623, "Änderungshistorie aktivieren", "activate Change History"},
    {624, "Rezeptdateien verschlüsseln", "Crypt Recipe Files"},
    {630, "Rezeptwerte...", "Recipe Value"},
    {631, "absolut", "absolute"},
    {632, "relativ", "relative"},
    {633, "Normfaktor", "Norm Factor"},
    {634, "Sollfaktorvariable", "Multiply Factor Variable"},
    {635, "Unterrezeptwerte hier speichern", "Save Sub Recipe Values here"},
    {640, "Optionen", "Options"},
    {641, "Transferverhalten", "Transfer behaviour"},
    {642, "Dateioptionen", "File Options"},
    {643, "geänderte Werte direkt schreiben", "Write changed values immediate"},
    {644, "geänderte Werte direkt speichern", "Save changed values immediate"},
    {700, "Optionen", "Options"},
    {701, "&Editorfont", "&Editor Font"},
    {702, "Abfrage vor &Löschen", "Request before &Delete"},
    {703, "&Statuszeile anzeigen", "Display &Status Line"},
    {704, "Einstellungen &automatisch beim Verlassen speichern", ""},
});

class TextTest : public ::testing::TestWithParam<Texts> {};

TEST_P(TextTest, StandsInBothLanguages) {
    EXPECT_EQ(tableFor(german).GetResource(GetParam().id), GetParam().german);
    EXPECT_EQ(tableFor(english).GetResource(GetParam().id), GetParam().english);
}

std::string numberOf(const ::testing::TestParamInfo<Texts>& row) { return std::to_string(row.param.id); }

INSTANTIATE_TEST_SUITE_P(Every, TextTest, ::testing::ValuesIn(allTexts), numberOf);

TEST(ResourceTable, HoldsSeventyNineTexts) {
    std::set<std::int32_t> expected;
    for (const Texts& row : allTexts) expected.insert(row.id);
    ASSERT_EQ(expected.size(), 79U);
    for (const std::int32_t language : {german, english}) {
        const ResourceTable table = tableFor(language);
        std::set<std::int32_t> found;
        for (std::int32_t id = 0; id < 1000; ++id) {
            if (table.GetResource(id) != "Resource " + std::to_string(id) + " not found") found.insert(id);
        }
        EXPECT_EQ(found, expected) << language;
    }
}

TEST(ResourceTable, IsGermanForEveryLanguageButAmericanEnglish) {
    EXPECT_EQ(tableFor(german).GetResource(102), "Rezepte");
    EXPECT_EQ(tableFor(english).GetResource(102), "Recipes");
    EXPECT_EQ(tableFor(2057).GetResource(102), "Rezepte");
    EXPECT_EQ(tableFor(2057).language(), 2057);
}

TEST(ResourceTable, IsGermanWithoutARegistryValue) {
    ResourceTable table;
    table.InitResources(headless::MemoryRegistry());
    EXPECT_EQ(table.GetResource(102), "Rezepte");
    EXPECT_EQ(table.language(), german);
}

TEST(ResourceTable, NamesAnUnknownNumberWithoutTheLanguagesOffset) {
    EXPECT_EQ(tableFor(german).GetResource(9999), "Resource 9999 not found");
    EXPECT_EQ(tableFor(english).GetResource(9999), "Resource 9999 not found");
    EXPECT_EQ(tableFor(english).GetResource(310), "Resource 310 not found");
    EXPECT_EQ(tableFor(german).GetResource(-1), "Resource -1 not found");
    EXPECT_EQ(tableFor(english).GetResource(2147483647), "Resource 2147483647 not found");
}

TEST(ResourceTable, KeepsTheFirstTextOfANumber) {
    ResourceTable table = tableFor(english);
    EXPECT_NO_THROW(table.AddResource(10, {"Gut", "Fine"}));
    EXPECT_EQ(table.GetResource(10), "OK");
    table.AddResource(9999, {"neu", "new"});
    EXPECT_EQ(table.GetResource(9999), "new");
}

TEST(ResourceTable, KeepsItsLanguageWhenFilledAgainForAnUnknownOne) {
    ResourceTable table = tableFor(english);
    table.AddResource(9999, {"neu", "new"});
    table.InitResources(registryWith(1036));
    EXPECT_EQ(table.GetResource(102), "Recipes");
    EXPECT_EQ(table.GetResource(9999), "Resource 9999 not found") << "the earlier table must be gone";
    table.InitResources(registryWith(german));
    EXPECT_EQ(table.GetResource(102), "Rezepte");
}

TEST(ResourceTable, HasItsTextsEvenWhenTheRegistryCannotBeRead) {
    headless::MemoryRegistry registry;
    registry.failWith(automation::Error(automation::errFail, "locked"));
    ResourceTable table;
    EXPECT_THROW(table.InitResources(registry), automation::Error);
    EXPECT_EQ(table.GetResource(102), "Rezepte");
}

TEST(ResourceTable, FindsNothingBeforeItIsFilled) {
    EXPECT_EQ(ResourceTable().GetResource(10), "Resource 10 not found");
}

}  // namespace
}  // namespace hx::resources
