#include "adapters/qt/help/help_texts.h"

#include "adapters/qt/language_text.h"

namespace hx::qt {

namespace {

constexpr auto entries = std::to_array<LanguageText<HelpText>>({
    {HelpText::window, "Hilfe", "Help"},
    {HelpText::back, "Zurück", "Back"},
    {HelpText::forward, "Vorwärts", "Forward"},
    {HelpText::home, "Startseite", "Start Page"},
    {HelpText::findOnPage, "Auf der Seite suchen", "Find on Page"},
    {HelpText::findNext, "Nächste Fundstelle", "Next Match"},
    {HelpText::findPrevious, "Vorige Fundstelle", "Previous Match"},
    {HelpText::closeFind, "Suche schließen", "Close Find"},
    {HelpText::notOnPage, "Nicht gefunden", "Not found"},
    {HelpText::hitOnPage, "%1 von %2", "%1 of %2"},
    {HelpText::contents, "&Inhalt", "&Contents"},
    {HelpText::search, "&Suche", "&Search"},
    {HelpText::searchWords, "Wörter in allen Themen suchen", "Search all topics for words"},
    {HelpText::searchHint, "Ein Thema wird gefunden, wenn es alle Wörter enthält.",
     "A topic is found when it contains all of the words."},
    {HelpText::searchNone, "Kein Thema enthält alle diese Wörter.", "No topic contains all of these words."},
    {HelpText::searchCount, "Themen: %1", "Topics: %1"},
    {HelpText::navigation, "Navigation", "Navigation"},
    {HelpText::topic, "Hilfethema", "Help Topic"},
    {HelpText::outside, "Die Hilfe öffnet nur eigene Themen, nicht %1", "Help opens only topics of its own, not %1"},
    {HelpText::broken, "Das Thema %1 gibt es in dieser Hilfe nicht.", "There is no topic %1 in this help."},
    {HelpText::noContext, "Zu dieser Stelle (%1) gibt es kein eigenes Thema.",
     "There is no topic of its own for this place (%1)."},
    {HelpText::textAlone, "Dieses Thema ist zu verschachtelt oder zu lang: gezeigt wird nur sein Text.",
     "This topic is nested too deeply or too long: only its text is shown."},
    {HelpText::damaged,
     "Die Hilfedatei \"%1\" ist beschädigt oder nicht lesbar.\n\n"
     "Wenn Sie die Datei löschen, legt das Studio sie beim nächsten Öffnen eines Projekts neu an.",
     "The help file \"%1\" is damaged or cannot be read.\n\n"
     "If you delete the file, the studio will put it there again when a project is next opened."},
});

}  // namespace

QString helpText(HelpText text, const Wording& wording) { return textOf(entries, text, wording.isEnglish()); }

}  // namespace hx::qt
