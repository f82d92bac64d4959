// SPDX-License-Identifier: MIT
#include "resources/resource_table.h"

#include <span>

namespace hx::resources {

namespace {

constexpr std::int32_t languageStep = 100000;

struct TextRow {
    std::int32_t id;
    std::array<std::string_view, 2> texts;
};

// What every add-in of the studio shares: buttons and the names of the shift keys.
constexpr TextRow commonTexts[] = {
    {10, {"OK", "OK"}},       {11, {"Abbrechen", "Cancel"}}, {12, {"&Hilfe", "&Help"}},
    {30, {"Strg+", "Ctrl+"}}, {31, {"Umsch+", "Shift+"}},    {32, {"Alt+", "Alt+"}},
};

// The editor's own. Wording, blanks and punctuation differ between the languages on purpose.
constexpr TextRow editorTexts[] = {
    {102, {"Rezepte", "Recipes"}},
    {103, {"Unterrezepte", "Sub Recipes"}},
    {202, {"&Rezepte", "&Recipes"}},
    {203, {"Rezept", "Recipe"}},
    {204, {"&Neu", "&New"}},
    {205, {"&Bearbeiten", "&Edit"}},
    {206, {"&Löschen", "&Delete"}},
    {210, {"Rezept&elemente", "Recipe &Members"}},
    {211, {"Rezeptelement", "Recipe Member"}},
    {212, {"&Variablen hinzufügen/löschen        ", "Add/Delete Variable"}},
    {213, {"&Bearbeiten", "&Edit"}},
    {214, {"&Löschen", "&Delete"}},
    {215, {"Neues &Unterrezept", "&New Sub Recipe"}},
    {220, {"&Optionen", "&Options"}},
    {221, {"Ansicht aktualisieren", "&Actualize Database Connection"}},
    {222, {"Statistik", "Statistic"}},
    {223, {"Optionen", "Options"}},
    {224, {"Report", "Report"}},
    {225, {"Konfiguration", "Configuration"}},
    {226, {"Editor anzeigen", "Show Editor"}},
    {301, {"Variable", "Variable"}},
    {302, {"Unterrezept", "Sub Recipe"}},
    {303, {"Dateiname", "File Name"}},
    {401, {"HelvixStudio Rezepteditor", "HelvixStudio Recipe Editor"}},
    {402, {": ", ": "}},
    {410,
     {"Wollen Sie wirklich das selektierte Rezept und alle darin enthaltenen Elemente löschen ?",
      "You really want to delete this Recipe and all included Elements ?"}},
    {411,
     {"Wollen Sie wirklich die selektierten Rezeptelemente löschen ?",
      "You really want to delete the selected Elements"}},
    {421, {"Func:", "Func:"}},
    {422, {"Rezepte:", "Recipes"}},
    {423, {"Rezeptelemente", "Recipe Members"}},
    {500, {"Unterrezept auswählen", "Select Sub Recipe"}},
    {501, {"&Unterrezept", "&SubRecipe"}},
    {502, {"&Dateiname", "&File Name"}},
    {510,
     {"Es muss ein gültiges Unterrezept und ein Item für den Dateinamen gewählt werden",
      "Please choose a valid SubRecipe and an Item which describes the File Name"}},
    {511, {"Es muss ein gültiges Unterrezept gewählt werden", "Please choose a valid SubRecipe"}},
    {550, {"Initialisierung Unterrezeptdialog fehlgeschlagen", "Error: Initializing SubRecipe Dalog"}},
    {551, {"Zurückschreiben Unterrezeptdialog fehlgeschlagen", "Error: Write Back SubRecipe Dalog"}},
    {600, {"FRECIPE", "FRECIPE"}},
    {601, {"Standard", "Standard"}},
    {602, {"Erweitert", "Extended"}},
    {603, {"Name", "Name"}},
    {604, {"Rezeptdateiname", "Recipe File Name"}},
    {605, {"Dateiendung", "File Extension"}},
    {606, {"Kommentar", "Comment"}},
    {607, {"Erweitert", "Extended"}},
    {608, {"Beschreibungsvariable", "Description Variable"}},
    {609, {"Ladetrigger", "Load Trigger"}},
    {610, {"Bitnummer", "Bitnumber"}},
    {611, {"Speichertrigger", "Save Trigger"}},
    {612, {"Lesetrigger", "Read Trigger"}},
    {613, {"Schreibtrigger", "Write Trigger"}},
    {614, {"Automatisch laden", "automatic Save"}},
    {615, {"Definition &aktiv", "Definition &active"}},
    {621, {"Rezeptdefinition", "Recipe Definition"}},
    {622, {"Rezeptdateipfad", "Recipe File Path"}},
    {623, {"Änderungshistorie aktivieren", "activate Change History"}},
    {624, {"Rezeptdateien verschlüsseln", "Crypt Recipe Files"}},
    {630, {"Rezeptwerte...", "Recipe Value"}},
    {631, {"absolut", "absolute"}},
    {632, {"relativ", "relative"}},
    {633, {"Normfaktor", "Norm Factor"}},
    {634, {"Sollfaktorvariable", "Multiply Factor Variable"}},
    {635, {"Unterrezeptwerte hier speichern", "Save Sub Recipe Values here"}},
    {640, {"Optionen", "Options"}},
    {641, {"Transferverhalten", "Transfer behaviour"}},
    {642, {"Dateioptionen", "File Options"}},
    {643, {"geänderte Werte direkt schreiben", "Write changed values immediate"}},
    {644, {"geänderte Werte direkt speichern", "Save changed values immediate"}},
    {700, {"Optionen", "Options"}},
    {701, {"&Editorfont", "&Editor Font"}},
    {702, {"Abfrage vor &Löschen", "Request before &Delete"}},
    {703, {"&Statuszeile anzeigen", "Display &Status Line"}},
    {704, {"Einstellungen &automatisch beim Verlassen speichern", ""}},
};

std::string keyOf(std::int64_t id) { return "R" + std::to_string(id); }

void addAll(ResourceTable& table, std::span<const TextRow> rows) {
    for (const TextRow& row : rows) table.AddResource(row.id, row.texts);
}

}  // namespace

void ResourceTable::InitResources(const host::Registry& registry) {
    texts_.clear();
    addAll(*this, commonTexts);
    addAll(*this, editorTexts);
    // Read last: a registry that throws leaves a full table in the language that it had.
    language_ = registry.readNumber(host::registry_keys::helvix, "LCID", automation::germanLcid);
    if (language_ == automation::germanLcid) offset_ = 0;
    if (language_ == automation::englishLcid) offset_ = languageStep;
}

void ResourceTable::AddResource(std::int32_t id, const std::array<std::string_view, 2>& texts) {
    for (std::int32_t language = 0; language < 2; ++language) {
        texts_.try_emplace(keyOf(id + std::int64_t{language} * languageStep),
                           texts[static_cast<std::size_t>(language)]);
    }
}

std::string ResourceTable::GetResource(std::int32_t id) const {
    const auto found = texts_.find(keyOf(std::int64_t{id} + offset_));
    return found != texts_.end() ? found->second : "Resource " + std::to_string(id) + " not found";
}

}  // namespace hx::resources
