#include "adapters/qt/wording.h"

#include <QLocale>

#include "adapters/qt/language_text.h"

namespace hx::qt {

namespace {

constexpr auto entries = std::to_array<LanguageText<Word>>({
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
    {Word::searchHint, "Wörter in Name, Typ oder Kommentar; -Wort schließt aus",
     "words in name, type or comment; -word excludes"},
    {Word::variables, "Variablen", "Variables"},
    {Word::shownCount, "%1 von %2", "%1 of %2"},
    {Word::checkedCount, "%1 von %2, %3 ausgewählt", "%1 of %2, %3 checked"},
    {Word::missingCount, "%1, davon %2 nicht in der Variablenliste", "%1, %2 of them not in the variable list"},
    {Word::missingVariable, "fehlt in der Variablenliste", "missing in the variable list"},
    {Word::onlyChecked, "&nur ausgewählte", "&only checked"},
    {Word::chooseSubject, "%1 auswählen", "Select %1"},
    {Word::choose, "Auswählen", "Select"},
    {Word::chooseFolder, "Ordner auswählen", "Select Folder"},
    {Word::chooseFont, "Schriftart auswählen", "Select Font"},
    {Word::helpMissing, "Die Hilfedatei \"%1\" wurde nicht gefunden.", "The help file \"%1\" was not found."},
});

}  // namespace

QString Wording::text(Word word) const { return textOf(entries, word, isEnglish()); }

QString Wording::number(std::size_t value) const {
    const QLocale locale(isEnglish() ? QLocale::English : QLocale::German);
    return locale.toString(static_cast<qulonglong>(value));
}

}  // namespace hx::qt
