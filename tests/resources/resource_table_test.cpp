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
};

class TextTest : public ::testing::TestWithParam<Texts> {};

TEST_P(TextTest, StandsInBothLanguages) {
    EXPECT_EQ(tableFor(german).GetResource(GetParam().id), GetParam().german);
    EXPECT_EQ(tableFor(english).GetResource(GetParam().id), GetParam().english);
}

std::string numberOf(const ::testing::TestParamInfo<Texts>& row) { return std::to_string(row.param.id); }

INSTANTIATE_TEST_SUITE_P(
    Uneven, TextTest,
    ::testing::Values(
        Texts{212, "&Variablen hinzufügen/löschen        ", "Add/Delete Variable"}, Texts{402, ": ", ": "},
        Texts{410, "Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?",
              "You really want to delete this Recipe and all included Elements ?"},
        Texts{411, "Wollen Sie wirklich die selektierten Rezeptelemente löschen ?",
              "You really want to delete the selected Elements"},
        Texts{422, "Rezepte:", "Recipes"},
        Texts{550, "Initialisierung Unterrezeptdialog fehlgeschlagen", "Error: Initializing SubRecipe Dalog"},
        Texts{551, "Zurückschreiben Unterrezeptdialog fehlgeschlagen", "Error: Write Back SubRecipe Dalog"},
        Texts{614, "Automatisch laden", "automatic Save"},
        Texts{704, "Einstellungen &automatisch beim Verlassen speichern", ""}),
    numberOf);

INSTANTIATE_TEST_SUITE_P(
    OfEachGroup, TextTest,
    ::testing::Values(
        Texts{10, "OK", "OK"}, Texts{11, "Abbrechen", "Cancel"}, Texts{12, "&Hilfe", "&Help"},
        Texts{30, "Strg+", "Ctrl+"}, Texts{31, "Umsch+", "Shift+"}, Texts{32, "Alt+", "Alt+"},
        Texts{102, "Rezepte", "Recipes"}, Texts{103, "Unterrezepte", "Sub Recipes"}, Texts{206, "&Löschen", "&Delete"},
        Texts{221, "Ansicht aktualisieren", "&Actualize Database Connection"}, Texts{303, "Dateiname", "File Name"},
        Texts{401, "HelvixStudio Rezepteditor", "HelvixStudio Recipe Editor"},
        Texts{510, "Es muss ein gültiges Unterrezept und ein Item für den Dateinamen gewählt werden",
              "Please choose a valid SubRecipe and an Item which describes the File Name"},
        Texts{600, "FRECIPE", "FRECIPE"}, Texts{623, "Änderungshistorie aktivieren", "activate Change History"},
        Texts{644, "geänderte Werte direkt speichern", "Save changed values immediate"},
        Texts{703, "&Statuszeile anzeigen", "Display &Status Line"}),
    numberOf);

TEST(ResourceTable, HoldsSeventyNineTexts) {
    const std::set<std::int32_t> expected{
        10,  11,  12,  30,  31,  32,  102, 103, 202, 203, 204, 205, 206, 210, 211, 212, 213, 214, 215, 220,
        221, 222, 223, 224, 225, 226, 301, 302, 303, 401, 402, 410, 411, 421, 422, 423, 500, 501, 502, 510,
        511, 550, 551, 600, 601, 602, 603, 604, 605, 606, 607, 608, 609, 610, 611, 612, 613, 614, 615, 621,
        622, 623, 624, 630, 631, 632, 633, 634, 635, 640, 641, 642, 643, 644, 700, 701, 702, 703, 704};
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
