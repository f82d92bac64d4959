#include "report/preview/preview_texts.h"

#include "adapters/qt/language_text.h"

namespace hx::report {

namespace {

constexpr auto entries = std::to_array<qt::LanguageText<PreviewText>>({
    {PreviewText::pageReference, "S. %1", "p. %1"},
    {PreviewText::pageOfPages, "Seite %1 von %2", "Page %1 of %2"},
    {PreviewText::print, "Drucken", "Print"},
    {PreviewText::savePdf, "PDF", "PDF"},
    {PreviewText::saveHtml, "HTML", "HTML"},
    {PreviewText::savePdfHint, "Als PDF speichern", "Save as PDF"},
    {PreviewText::saveHtmlHint, "Als HTML speichern", "Save as HTML"},
    {PreviewText::zoomIn, "Vergrößern", "Zoom In"},
    {PreviewText::zoomOut, "Verkleinern", "Zoom Out"},
    {PreviewText::zoom, "Darstellungsgröße", "Zoom"},
    {PreviewText::fitWidth, "Seitenbreite", "Page Width"},
    {PreviewText::fitPage, "Ganze Seite", "Whole Page"},
    {PreviewText::firstPage, "Erste Seite", "First Page"},
    {PreviewText::previousPage, "Vorige Seite", "Previous Page"},
    {PreviewText::nextPage, "Nächste Seite", "Next Page"},
    {PreviewText::lastPage, "Letzte Seite", "Last Page"},
    {PreviewText::page, "Seite", "Page"},
    {PreviewText::ofPages, "von %1", "of %1"},
    {PreviewText::close, "Schließen", "Close"},
    {PreviewText::tools, "Werkzeuge", "Tools"},
    {PreviewText::pages, "Seiten des Berichts", "Pages of the report"},
    {PreviewText::recipes, "Rezepte", "Recipes"},
    {PreviewText::fileKindPdf, "PDF-Dateien (*.pdf)", "PDF files (*.pdf)"},
    {PreviewText::fileKindHtml, "HTML-Dateien (*.html *.htm)", "HTML files (*.html *.htm)"},
    {PreviewText::save, "Speichern", "Save"},
    {PreviewText::cancel, "Abbrechen", "Cancel"},
    {PreviewText::overwrite, "Die Datei gibt es schon:\n%1\n\nSoll sie ersetzt werden?",
     "The file exists already:\n%1\n\nReplace it?"},
    {PreviewText::notOverProject, "Der Bericht kann nicht an die Stelle der Projektdatei geschrieben werden:\n%1",
     "The report cannot be written in place of the project file:\n%1"},
    {PreviewText::notSaved, "Der Bericht konnte nicht gespeichert werden:\n%1\n\n%2",
     "The report could not be saved:\n%1\n\n%2"},
    {PreviewText::saved, "Gespeichert: %1", "Saved: %1"},
    {PreviewText::notPrinted, "Der Bericht konnte nicht gedruckt werden. Der Drucker „%1“ nimmt keinen Auftrag an.",
     "The report could not be printed. The printer “%1” does not take a job."},
    {PreviewText::printed, "An den Drucker „%1“ gegeben", "Sent to the printer “%1”"},
});

}  // namespace

QString previewText(PreviewText text, const Texts& language) { return qt::textOf(entries, text, language.isEnglish()); }

}  // namespace hx::report
