#include "adapters/qt/wording.h"

#include <array>

namespace hx::qt {

namespace {

struct Entry {
    Word word;
    const char* german;
    const char* english;
};

constexpr auto entries = std::to_array<Entry>({
    {Word::ok, "OK", "OK"},
    {Word::cancel, "Abbrechen", "Cancel"},
    {Word::yes, "&Ja", "&Yes"},
    {Word::no, "&Nein", "&No"},
    {Word::chooseVariable, "Variable auswählen", "Select Variable"},
    {Word::searchVariable, "&Suchen:", "&Search:"},
    {Word::variableName, "Name", "Name"},
    {Word::variableType, "Typ", "Type"},
    {Word::variableComment, "Kommentar", "Comment"},
    {Word::noVariables, "Die Variablenliste des Projekts ist leer.", "The project's variable list is empty."},
    {Word::chooseFolder, "Ordner auswählen", "Select Folder"},
    {Word::chooseFont, "Schriftart auswählen", "Select Font"},
    {Word::helpMissing, "Die Hilfedatei \"%1\" wurde nicht gefunden.", "The help file \"%1\" was not found."},
});

}  // namespace

QString Wording::text(Word word) const {
    for (const Entry& entry : entries) {
        if (entry.word == word) return QString::fromUtf8(isEnglish() ? entry.english : entry.german);
    }
    return {};
}

}  // namespace hx::qt
