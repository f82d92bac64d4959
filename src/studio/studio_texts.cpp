#include "studio/studio_texts.h"

#include <array>

namespace hx::studio {

namespace {

struct Entry {
    Text text;
    const char* german;
    const char* english;
};

constexpr auto entries = std::to_array<Entry>({
    {Text::fileMenu, "&Datei", "&File"},
    {Text::newProject, "&Neues Projekt …", "&New Project…"},
    {Text::openProject, "Ö&ffnen …", "&Open…"},
    {Text::recentProjects, "&Zuletzt geöffnet", "&Recent Projects"},
    {Text::clearRecent, "Liste &leeren", "&Clear List"},
    {Text::closeProject, "Projekt &schließen", "&Close Project"},
    {Text::exitStudio, "&Beenden", "E&xit"},
    {Text::viewMenu, "&Ansicht", "&View"},
    {Text::explorer, "Projekt-Explorer", "Project Explorer"},
    {Text::macrosMenu, "&Makros", "M&acros"},
    {Text::noMacros, "(noch keine Makros)", "(no macros yet)"},
    {Text::macroHint, "Makro %1 ausführen", "Run the macro %1"},
    {Text::runMacroFile, "Makrodatei aus&führen …", "Run Macro &File…"},
    {Text::runMacroFileTitle, "Makrodatei ausführen", "Run Macro File"},
    {Text::macroFiles, "Makros in Lua (*.lua)", "Macros in Lua (*.lua)"},
    {Text::runMacroAgain, "&Nochmals ausführen", "Run &Again"},
    {Text::runMacroAgainTip, "Das letzte Makro nochmals ausführen (%1)", "Run the last macro again (%1)"},
    {Text::stopMacro, "&Anhalten", "&Stop"},
    {Text::stopMacroTip, "Das laufende Makro anhalten (%1), auch solange es einen Dialog zeigt",
     "Stop the running macro (%1), also while it shows a dialog"},
    {Text::openMacroFolder, "Makro&ordner öffnen", "&Open Macros Folder"},
    {Text::macroFolderNotOpened, "Der Ordner konnte nicht geöffnet werden: %1", "The folder could not be opened: %1"},
    {Text::copySampleMacros, "&Beispielmakros kopieren", "&Copy Sample Macros"},
    {Text::sampleMacrosCopied, "%1 Beispielmakros kopiert nach %2", "%1 sample macros copied to %2"},
    {Text::sampleMacrosThere, "Die Beispielmakros sind schon da: %1", "The sample macros are there already: %1"},
    {Text::macroFolderNotWritten, "Der Makroordner kann nicht beschrieben werden:\n%1",
     "The macros folder cannot be written:\n%1"},
    {Text::macroOutput, "Makroausgabe", "Macro output"},
    {Text::clearOutput, "&Leeren", "Cl&ear"},
    {Text::copyOutput, "&Kopieren", "Cop&y"},
    {Text::macroArguments, "Ar&gumente:", "Ar&guments:"},
    {Text::macroArgumentsTip, "Was das Makro mitbekommt, durch Leerzeichen getrennt; Text mit Leerzeichen in \"\"",
     "What the macro is given, separated by spaces; text with spaces in \"\""},
    {Text::macroRunning, "%1 läuft … (%2 hält an)", "%1 is running… (%2 stops it)"},
    {Text::macroDone, "%1: fertig nach %2 s", "%1: done in %2 s"},
    {Text::macroFailed, "%1: fehlgeschlagen", "%1: failed"},
    {Text::macroFailedInLine, "%1: fehlgeschlagen in Zeile %2", "%1: failed in line %2"},
    {Text::macroStopped, "%1: angehalten nach %2 s", "%1: stopped after %2 s"},
    {Text::macroNotRead, "Die Datei kann nicht gelesen werden: %1", "The file cannot be read: %1"},
    {Text::macroLinesLeftOut, "[%1 Zeilen ausgelassen]", "[%1 lines left out]"},
    {Text::languageMenu, "&Sprache", "&Language"},
    {Text::german, "&Deutsch", "&Deutsch (German)"},
    {Text::english, "&English (Englisch)", "&English"},
    {Text::helpMenu, "&Hilfe", "&Help"},
    {Text::showHelp, "Hilfe zum &Rezeptsystem", "&Recipe System Help"},
    {Text::helpNotInstalled, "Die Hilfe konnte nicht abgelegt werden: %1",
     "The help could not be put in its place: %1"},
    {Text::about, "&Über HelvixStudio", "&About HelvixStudio"},
    {Text::aboutText, "<b>HelvixStudio %1</b><p>Projektierung von Prozessvisualisierungen mit dem Rezepteditor.</p>",
     "<b>HelvixStudio %1</b><p>Engineering of process visualisations with the recipe editor.</p>"},
    {Text::ready, "Bereit", "Ready"},
    {Text::projectOpened, "Projekt %1 geöffnet", "Project %1 opened"},
    {Text::projectClosed, "Projekt geschlossen", "Project closed"},
    {Text::languageLater, "Die Sprache des Rezepteditors gilt ab dem nächsten geöffneten Projekt.",
     "The recipe editor's language takes effect with the next project that is opened."},
    {Text::newProjectTitle, "Neues Projekt", "New Project"},
    {Text::openProjectTitle, "Projekt öffnen", "Open Project"},
    {Text::projectFiles, "HelvixStudio-Projekte (*.hxs)", "HelvixStudio projects (*.hxs)"},
    {Text::allFiles, "Alle Dateien (*)", "All files (*)"},
    {Text::fileMissing, "Die Projektdatei wurde nicht gefunden:\n%1", "The project file was not found:\n%1"},
    {Text::fileExists, "Die Datei gibt es schon. Bitte einen anderen Namen wählen:\n%1",
     "The file exists already. Please choose another name:\n%1"},
    {Text::fileNotCreated, "Das Projekt konnte nicht angelegt werden:\n%1", "The project could not be created:\n%1"},
    {Text::notProjectName, "Der Name einer Projektdatei endet auf \".hxs\":\n%1",
     "The name of a project file ends in \".hxs\":\n%1"},
    {Text::notProjectPath, "Name und Ordner eines Projekts dürfen kein \";\" und kein \"\"\" enthalten:\n%1",
     "The name and the folder of a project must not contain \";\" or \"\"\":\n%1"},
    {Text::addInNotLoaded, "Der Rezepteditor steht nicht zur Verfügung.\n%1",
     "The recipe editor is not available.\n%1"},
    {Text::addInWrong, "Das Modul ist kein Add-In des Studios.", "The module is no add-in of the studio."},
    {Text::registryNotRead, "Die Einstellungen konnten nicht gelesen werden.\n%1",
     "The settings could not be read.\n%1"},
    {Text::registryNotWritten, "Die Einstellung konnte nicht gespeichert werden.\n%1",
     "The setting could not be saved.\n%1"},
    {Text::settingsNotWritten, "Fenster und Projektliste konnten nicht gespeichert werden:\n%1",
     "The window and the list of projects could not be saved:\n%1"},
    {Text::unexpected, "Unerwarteter Fehler", "Unexpected Error"},
    {Text::hint, "Kein Projekt geöffnet\n\nDatei → Öffnen oder Datei → Neues Projekt",
     "No project is open\n\nFile → Open or File → New Project"},
    {Text::documents, "Dokumente", "Documents"},
});

}  // namespace

QString studioText(Text text, const qt::Wording& wording) {
    for (const Entry& entry : entries) {
        if (entry.text == text) return QString::fromUtf8(wording.isEnglish() ? entry.english : entry.german);
    }
    return {};
}

}  // namespace hx::studio
