<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>dialogs</name>
    <message>
        <source>Select Font</source>
        <translation>Schriftart auswählen</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Select Variable</source>
        <translation>Variable auswählen</translation>
    </message>
    <message>
        <source>words in name, type or comment; -word excludes</source>
        <translation>Wörter in Name, Typ oder Kommentar; -Wort schließt aus</translation>
    </message>
    <message>
        <source>The project&apos;s variable list is empty.</source>
        <translation>Die Variablenliste des Projekts ist leer.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>missing in the variable list</source>
        <translation>fehlt in der Variablenliste</translation>
    </message>
    <message>
        <source>&amp;only checked</source>
        <translation>&amp;nur ausgewählte</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>%1 of %2, %3 checked</source>
        <translation>%1 von %2, %3 ausgewählt</translation>
    </message>
    <message>
        <source>%1, %2 of them not in the variable list</source>
        <translation>%1, davon %2 nicht in der Variablenliste</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; was not found.</source>
        <translation>Die Hilfedatei &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Select %1</source>
        <translation>%1 auswählen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>Previous Match</source>
        <translation>Vorige Fundstelle</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>Nächste Fundstelle</translation>
    </message>
    <message>
        <source>Close Find</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>Find on Page</source>
        <translation>Auf der Seite suchen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Search all topics for words</source>
        <translation>Wörter in allen Themen suchen</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suche</translation>
    </message>
    <message>
        <source>A topic is found when it contains all of the words.</source>
        <translation>Ein Thema wird gefunden, wenn es alle Wörter enthält.</translation>
    </message>
    <message>
        <source>No topic contains all of these words.</source>
        <translation>Kein Thema enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>Topics: %1</source>
        <translation>Themen: %1</translation>
    </message>
    <message>
        <source>Help opens only topics of its own, not %1</source>
        <translation>Die Hilfe öffnet nur eigene Themen, nicht %1</translation>
    </message>
    <message>
        <source>There is no topic %1 in this help.</source>
        <translation>Das Thema %1 gibt es in dieser Hilfe nicht.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Start Page</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Help Topic</source>
        <translation>Hilfethema</translation>
    </message>
    <message>
        <source>There is no topic of its own for this place (%1).</source>
        <translation>Zu dieser Stelle (%1) gibt es kein eigenes Thema.</translation>
    </message>
    <message>
        <source>This topic is nested too deeply or too long: only its text is shown.</source>
        <translation>Dieses Thema ist zu verschachtelt oder zu lang: gezeigt wird nur sein Text.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The help file &quot;%1&quot; is damaged or cannot be read.

If you delete the file, the studio will put it there again when a project is next opened.</source>
        <translation>Die Hilfedatei &quot;%1&quot; ist beschädigt oder nicht lesbar.

Wenn Sie die Datei löschen, legt das Studio sie beim nächsten Öffnen eines Projekts neu an.</translation>
    </message>
</context>
<context>
    <name>report</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The report cannot be written in place of the project file:
%1</source>
        <translation>Der Bericht kann nicht an die Stelle der Projektdatei geschrieben werden:
%1</translation>
    </message>
    <message>
        <source>The file exists already:
%1

Replace it?</source>
        <translation>Die Datei gibt es schon:
%1

Soll sie ersetzt werden?</translation>
    </message>
    <message>
        <source>Sent to the printer “%1”</source>
        <translation>An den Drucker „%1“ gegeben</translation>
    </message>
    <message>
        <source>The report could not be printed. The printer “%1” does not take a job.</source>
        <translation>Der Bericht konnte nicht gedruckt werden. Der Drucker „%1“ nimmt keinen Auftrag an.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Save as HTML</source>
        <translation>Als HTML speichern</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>HTML files (*.html *.htm)</source>
        <translation>HTML-Dateien (*.html *.htm)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Darstellungsgröße</translation>
    </message>
    <message>
        <source>Page Width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Seiten des Berichts</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>The report could not be saved:
%1

%2</source>
        <translation>Der Bericht konnte nicht gespeichert werden:
%1

%2</translation>
    </message>
    <message>
        <source>p. %1</source>
        <translation>S. %1</translation>
    </message>
    <message>
        <source>Writing the report …</source>
        <translation>Der Bericht wird ausgegeben …</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Find in the report</source>
        <translation>Im Bericht suchen</translation>
    </message>
    <message>
        <source>Previous Match (Shift+F3)</source>
        <translation>Voriger Treffer (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Next Match (F3)</source>
        <translation>Nächster Treffer (F3)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Looking for “%1” …</source>
        <translation>Sucht „%1“ …</translation>
    </message>
</context>
<context>
    <name>studio</name>
    <message>
        <source>Run &amp;Again</source>
        <translation>&amp;Nochmals ausführen</translation>
    </message>
    <message>
        <source>Run the last macro again (%1)</source>
        <translation>Das letzte Makro nochmals ausführen (%1)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Stop the running macro (%1), also while it shows a dialog</source>
        <translation>Das laufende Makro anhalten (%1), auch solange es einen Dialog zeigt</translation>
    </message>
    <message>
        <source>Run Macro File</source>
        <translation>Makrodatei ausführen</translation>
    </message>
    <message>
        <source>Macros in Lua (*.lua)</source>
        <translation>Makros in Lua (*.lua)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The macros folder cannot be written:
%1</source>
        <translation>Der Makroordner kann nicht beschrieben werden:
%1</translation>
    </message>
    <message>
        <source>Macro output</source>
        <translation>Makroausgabe</translation>
    </message>
    <message>
        <source>The folder could not be opened: %1</source>
        <translation>Der Ordner konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>%1 sample macros copied to %2</source>
        <translation>%1 Beispielmakros kopiert nach %2</translation>
    </message>
    <message>
        <source>The sample macros are there already: %1</source>
        <translation>Die Beispielmakros sind schon da: %1</translation>
    </message>
    <message>
        <source>[%1 lines left out]</source>
        <translation>[%1 Zeilen ausgelassen]</translation>
    </message>
    <message>
        <source>%1 is running… (%2 stops it)</source>
        <translation>%1 läuft … (%2 hält an)</translation>
    </message>
    <message>
        <source>%1: done in %2 s</source>
        <translation>%1: fertig nach %2 s</translation>
    </message>
    <message>
        <source>%1: stopped after %2 s</source>
        <translation>%1: angehalten nach %2 s</translation>
    </message>
    <message>
        <source>%1: failed</source>
        <translation>%1: fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1: failed in line %2</source>
        <translation>%1: fehlgeschlagen in Zeile %2</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Ar&amp;guments:</source>
        <translation>Ar&amp;gumente:</translation>
    </message>
    <message>
        <source>What the macro is given, separated by spaces; text with spaces in &quot;&quot;</source>
        <translation>Was das Makro mitbekommt, durch Leerzeichen getrennt; Text mit Leerzeichen in &quot;&quot;</translation>
    </message>
    <message>
        <source>M&amp;acros</source>
        <translation>&amp;Makros</translation>
    </message>
    <message>
        <source>Run Macro &amp;File…</source>
        <translation>Makrodatei aus&amp;führen …</translation>
    </message>
    <message>
        <source>&amp;Open Macros Folder</source>
        <translation>Makro&amp;ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Copy Sample Macros</source>
        <translation>&amp;Beispielmakros kopieren</translation>
    </message>
    <message>
        <source>(no macros yet)</source>
        <translation>(noch keine Makros)</translation>
    </message>
    <message>
        <source>Run the macro %1</source>
        <translation>Makro %1 ausführen</translation>
    </message>
    <message>
        <source>The settings could not be read.
%1</source>
        <translation>Die Einstellungen konnten nicht gelesen werden.
%1</translation>
    </message>
    <message>
        <source>Project Explorer</source>
        <translation>Projekt-Explorer</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>The setting could not be saved.
%1</source>
        <translation>Die Einstellung konnte nicht gespeichert werden.
%1</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>The project file was not found:
%1</source>
        <translation>Die Projektdatei wurde nicht gefunden:
%1</translation>
    </message>
    <message>
        <source>The name of a project file ends in &quot;.hxs&quot;:
%1</source>
        <translation>Der Name einer Projektdatei endet auf &quot;.hxs&quot;:
%1</translation>
    </message>
    <message>
        <source>The name and the folder of a project must not contain &quot;;&quot; or &quot;&quot;&quot;:
%1</source>
        <translation>Name und Ordner eines Projekts dürfen kein &quot;;&quot; und kein &quot;&quot;&quot; enthalten:
%1</translation>
    </message>
    <message>
        <source>Project %1 opened</source>
        <translation>Projekt %1 geöffnet</translation>
    </message>
    <message>
        <source>The window and the list of projects could not be saved:
%1</source>
        <translation>Fenster und Projektliste konnten nicht gespeichert werden:
%1</translation>
    </message>
    <message>
        <source>The recipe editor is not available.
%1</source>
        <translation>Der Rezepteditor steht nicht zur Verfügung.
%1</translation>
    </message>
    <message>
        <source>The help could not be put in its place: %1</source>
        <translation>Die Hilfe konnte nicht abgelegt werden: %1</translation>
    </message>
    <message>
        <source>Project closed</source>
        <translation>Projekt geschlossen</translation>
    </message>
    <message>
        <source>The file exists already. Please choose another name:
%1</source>
        <translation>Die Datei gibt es schon. Bitte einen anderen Namen wählen:
%1</translation>
    </message>
    <message>
        <source>The project could not be created:
%1</source>
        <translation>Das Projekt konnte nicht angelegt werden:
%1</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>HelvixStudio projects (*.hxs)</source>
        <translation>HelvixStudio-Projekte (*.hxs)</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;About HelvixStudio</source>
        <translation>&amp;Über HelvixStudio</translation>
    </message>
    <message>
        <source>Unexpected Error</source>
        <translation>Unerwarteter Fehler</translation>
    </message>
    <message>
        <source>The module is no add-in of the studio.</source>
        <translation>Das Modul ist kein Add-In des Studios.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Neues Projekt …</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Close Project</source>
        <translation>Projekt &amp;schließen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Deutsch (German)</source>
        <translation>&amp;Deutsch</translation>
    </message>
    <message>
        <source>&amp;English</source>
        <translation>&amp;English (Englisch)</translation>
    </message>
    <message>
        <source>&amp;Recipe System Help</source>
        <translation>Hilfe zum &amp;Rezeptsystem</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>(project as it was opened)</source>
        <translation>(Projekt beim Öffnen)</translation>
    </message>
    <message>
        <source>changed in the last session</source>
        <translation>in der letzten Sitzung geändert</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Changes of the last session: %1. They can be undone in the history.</source>
        <translation>Änderungen der letzten Sitzung: %1. Sie können im Verlauf zurückgenommen werden.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>No copy of the project was kept: %1</source>
        <translation>Es wurde keine Kopie des Projekts aufbewahrt: %1</translation>
    </message>
    <message>
        <source>&amp;Keep a Copy before Each Day&apos;s First Change</source>
        <translation>Vor der ersten Änderung des Tages &amp;Kopie aufbewahren</translation>
    </message>
    <message>
        <source>Filter: words of the name, -word excludes</source>
        <translation>Filter: Wörter des Namens, -Wort schließt aus</translation>
    </message>
    <message>
        <source>Filter recipes</source>
        <translation>Rezepte filtern</translation>
    </message>
    <message>
        <source>Shows the recipes whose names contain all of these words, and none with &quot;-&quot; (%1)</source>
        <translation>Zeigt die Rezepte, deren Namen alle diese Wörter enthalten und keines mit „-“ davor (%1)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Su&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Filter Explorer</source>
        <translation>Explorer &amp;filtern</translation>
    </message>
    <message>
        <source>Explorer by &amp;Name</source>
        <translation>Explorer nach &amp;Namen</translation>
    </message>
    <message>
        <source>Find and &amp;Replace</source>
        <translation>Suchen und &amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Where Used</source>
        <translation>&amp;Verwendung</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>F&amp;orward</source>
        <translation>V&amp;orwärts</translation>
    </message>
    <message>
        <source>&amp;Go to Sub-Recipe</source>
        <translation>Zum &amp;Unterrezept</translation>
    </message>
    <message>
        <source>Rena&amp;me Recipe</source>
        <translation>Rezept u&amp;mbenennen</translation>
    </message>
    <message>
        <source>Orders the recipes by their names instead of as they were made</source>
        <translation>Ordnet die Rezepte nach ihren Namen statt so, wie sie angelegt wurden</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Fi&amp;nd</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>Re&amp;place by</source>
        <translation>Erset&amp;zen durch</translation>
    </message>
    <message>
        <source>Replace Selecte&amp;d</source>
        <translation>Markier&amp;te ersetzen</translation>
    </message>
    <message>
        <source>Repla&amp;ce All</source>
        <translation>A&amp;lle ersetzen</translation>
    </message>
    <message>
        <source>Ma&amp;tch case</source>
        <translation>Groß-/Klei&amp;nschreibung</translation>
    </message>
    <message>
        <source>&amp;Whole word</source>
        <translation>Ganzes &amp;Wort</translation>
    </message>
    <message>
        <source>Regular e&amp;xpression</source>
        <translation>Regulärer Ausdruc&amp;k</translation>
    </message>
    <message>
        <source>Recipes</source>
        <translation>Rezepte</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Rezeptelemente</translation>
    </message>
    <message>
        <source>Variable list</source>
        <translation>Variablenliste</translation>
    </message>
    <message>
        <source>Text in names, comments and variables</source>
        <translation>Text in Namen, Kommentaren und Variablen</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>New text; \1 for the first group of a regular expression</source>
        <translation>Neuer Text; \1 für die erste Gruppe eines regulären Ausdrucks</translation>
    </message>
    <message>
        <source>New text</source>
        <translation>Neuer Text</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>This is no regular expression: %1</source>
        <translation>Das ist kein regulärer Ausdruck: %1</translation>
    </message>
    <message>
        <source>Replaced: “%1” by “%2”</source>
        <translation>Ersetzt: „%1“ durch „%2“</translation>
    </message>
    <message>
        <source>Searching …</source>
        <translation>Sucht …</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>(missing recipe %1)</source>
        <translation>(fehlendes Rezept %1)</translation>
    </message>
    <message>
        <source>File name of a sub-recipe</source>
        <translation>Dateiname eines Unterrezepts</translation>
    </message>
    <message>
        <source>Recipes that name it</source>
        <translation>Rezepte, die sie nennen</translation>
    </message>
    <message>
        <source>Recipes that contain it</source>
        <translation>Rezepte, die sie enthalten</translation>
    </message>
    <message>
        <source>File name of sub-recipes</source>
        <translation>Dateiname von Unterrezepten</translation>
    </message>
    <message>
        <source>Recipes that include it</source>
        <translation>Rezepte, die es enthalten</translation>
    </message>
    <message>
        <source>Through sub-recipes</source>
        <translation>Über Unterrezepte</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Sub-recipe</source>
        <translation>Unterrezept</translation>
    </message>
    <message>
        <source>through %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>The variable %1 is not in the variable list</source>
        <translation>Die Variable %1 steht nicht in der Variablenliste</translation>
    </message>
    <message>
        <source>Damage</source>
        <translation>Beschädigung</translation>
    </message>
    <message>
        <source>Recipes that contain themselves</source>
        <translation>Rezepte, die sich selbst enthalten</translation>
    </message>
    <message>
        <source>Missing sub-recipes</source>
        <translation>Fehlende Unterrezepte</translation>
    </message>
    <message>
        <source>Members without a recipe</source>
        <translation>Elemente ohne Rezept</translation>
    </message>
    <message>
        <source>Sub-recipes without a file name</source>
        <translation>Unterrezepte ohne Dateinamen</translation>
    </message>
    <message>
        <source>Unknown variables</source>
        <translation>Unbekannte Variablen</translation>
    </message>
    <message>
        <source>Shared triggers</source>
        <translation>Gemeinsame Trigger</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Filter: words, -word excludes</source>
        <translation>Filter: Wörter, -Wort schließt aus</translation>
    </message>
    <message>
        <source>Filter problems</source>
        <translation>Probleme filtern</translation>
    </message>
    <message>
        <source>Shows what is wrong in the project</source>
        <translation>Zeigt, was im Projekt nicht stimmt</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>1 problem</source>
        <translation>1 Problem</translation>
    </message>
    <message>
        <source>%1 problems</source>
        <translation>%1 Probleme</translation>
    </message>
    <message>
        <source>Where Used</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>Name of a variable or recipe</source>
        <translation>Name einer Variable oder eines Rezepts</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>There is neither a variable nor a recipe of this name</source>
        <translation>Weder eine Variable noch ein Rezept heißt so</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>1 use</source>
        <translation>1 Verwendung</translation>
    </message>
    <message>
        <source>%1 uses</source>
        <translation>%1 Verwendungen</translation>
    </message>
    <message>
        <source>Engineering of process visualisations with the recipe editor.</source>
        <translation>Projektierung von Prozessvisualisierungen mit dem Rezepteditor.</translation>
    </message>
    <message>
        <source>Licence: MIT. Copyright © 2026 The HXRecipeEditor authors</source>
        <translation>Lizenz: MIT. Copyright © 2026 The HXRecipeEditor authors</translation>
    </message>
    <message>
        <source>Made with: %1</source>
        <translation>Hergestellt mit: %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>The project is opened again in the other language. Shall what is being typed be stored first?</source>
        <translation>Das Projekt wird in der anderen Sprache neu geöffnet. Soll zuvor gespeichert werden, was gerade eingegeben wird?</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation>&amp;Anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Folder of the Project</source>
        <translation>Ordner des Projekts</translation>
    </message>
    <message>
        <source>A name cannot contain &quot;/&quot; or &quot;\&quot;.</source>
        <translation>Ein Name kann kein „/“ oder „\“ enthalten.</translation>
    </message>
    <message>
        <source>The project will be the file %1.</source>
        <translation>Das Projekt wird die Datei %1.</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Filter keyboard shortcuts</source>
        <translation>Tastenkürzel filtern</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>The projects that you open are listed here.</source>
        <translation>Hier stehen die Projekte, die zuletzt geöffnet waren.</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Sample Project</source>
        <translation>Be&amp;ispielprojekt</translation>
    </message>
    <message>
        <source>Open the &amp;Last Project at Start</source>
        <translation>Beim Start das &amp;letzte Projekt öffnen</translation>
    </message>
    <message>
        <source>Paste Variables</source>
        <translation>Variablen einfügen</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Add &amp;unknown variables too</source>
        <translation>Auch &amp;unbekannte Variablen hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>is there already</source>
        <translation>ist schon da</translation>
    </message>
    <message>
        <source>is added</source>
        <translation>wird hinzugefügt</translation>
    </message>
    <message>
        <source>is added, not in the list</source>
        <translation>wird hinzugefügt, nicht in der Liste</translation>
    </message>
    <message>
        <source>not in the list</source>
        <translation>nicht in der Liste</translation>
    </message>
    <message>
        <source>%1 of %2 lines are added.</source>
        <translation>%1 von %2 Zeilen werden hinzugefügt.</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Duplicate with &amp;Sub-Recipes</source>
        <translation>Mit &amp;Unterrezepten duplizieren</translation>
    </message>
    <message>
        <source>&amp;Create Series…</source>
        <translation>Reihe &amp;anlegen …</translation>
    </message>
    <message>
        <source>D&amp;elete Selected Recipes…</source>
        <translation>Ausgewählte Rezepte &amp;löschen …</translation>
    </message>
    <message>
        <source>&amp;Report on Selected Recipes</source>
        <translation>Bericht über die ausgewählten &amp;Rezepte</translation>
    </message>
    <message>
        <source>Cop&amp;y Rows</source>
        <translation>Zeilen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste Variables…</source>
        <translation>Variablen &amp;einfügen …</translation>
    </message>
    <message>
        <source>Recipe duplicated</source>
        <translation>Rezept dupliziert</translation>
    </message>
    <message>
        <source>%1 recipes duplicated</source>
        <translation>%1 Rezepte dupliziert</translation>
    </message>
    <message>
        <source>Delete the selected recipe with all of its members?</source>
        <translation>Das ausgewählte Rezept mit allen seinen Elementen löschen?</translation>
    </message>
    <message>
        <source>Delete %1 recipes with all of their members?</source>
        <translation>%1 Rezepte mit allen ihren Elementen löschen?</translation>
    </message>
    <message>
        <source>Delete Recipes</source>
        <translation>Rezepte löschen</translation>
    </message>
    <message>
        <source>%1 recipes deleted</source>
        <translation>%1 Rezepte gelöscht</translation>
    </message>
    <message>
        <source>Series of %1 recipes created</source>
        <translation>Reihe von %1 Rezepten angelegt</translation>
    </message>
    <message>
        <source>%1 variables pasted</source>
        <translation>%1 Variablen eingefügt</translation>
    </message>
    <message>
        <source>Create Series</source>
        <translation>Reihe anlegen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Variables, a line each:</source>
        <translation>&amp;Variablen, je eine Zeile:</translation>
    </message>
    <message>
        <source>&amp;Preview:</source>
        <translation>V&amp;orschau:</translation>
    </message>
    <message>
        <source>%1 recipes, %2 variables in each.</source>
        <translation>%1 Rezepte, je %2 Variablen.</translation>
    </message>
    <message>
        <source>%1 of all are not in the variable list.</source>
        <translation>%1 von allen stehen nicht in der Variablenliste.</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 marked</source>
        <translation>%1 markiert</translation>
    </message>
    <message>
        <source>Row not stored yet</source>
        <translation>Zeile noch nicht gespeichert</translation>
    </message>
    <message>
        <source>All stored</source>
        <translation>Alles gespeichert</translation>
    </message>
    <message>
        <source>All stored, changes: %1</source>
        <translation>Alles gespeichert, Änderungen: %1</translation>
    </message>
    <message>
        <source>Rec&amp;ipe</source>
        <translation>Reze&amp;pt</translation>
    </message>
    <message>
        <source>What the macro has found</source>
        <translation>Was das Makro gefunden hat</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>New Variable</source>
        <translation>Neue Variable</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>Ko&amp;mmentar:</translation>
    </message>
    <message>
        <source>There is a variable of this name</source>
        <translation>Eine Variable dieses Namens gibt es schon</translation>
    </message>
    <message>
        <source>Current Variable</source>
        <translation>Aktuelle Variable</translation>
    </message>
    <message>
        <source>Other recipes that use it</source>
        <translation>Andere Rezepte, die sie verwenden</translation>
    </message>
    <message>
        <source>No variable is chosen</source>
        <translation>Keine Variable gewählt</translation>
    </message>
    <message>
        <source>No other recipe uses it</source>
        <translation>Kein anderes Rezept verwendet sie</translation>
    </message>
    <message>
        <source>Other uses: %1</source>
        <translation>Weitere Verwendungen: %1</translation>
    </message>
    <message>
        <source>It is not in the variable list.</source>
        <translation>Sie steht nicht in der Variablenliste.</translation>
    </message>
    <message>
        <source>Variables: %1 new, %2 changed, %3 unchanged</source>
        <translation>Variablen: %1 neu, %2 geändert, %3 unverändert</translation>
    </message>
    <message>
        <source>Varia&amp;bles</source>
        <translation>&amp;Variablen</translation>
    </message>
    <message>
        <source>&amp;Show List</source>
        <translation>Liste &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;New Variable…</source>
        <translation>&amp;Neue Variable …</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren …</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>E&amp;xportieren …</translation>
    </message>
    <message>
        <source>Variable “%1” changed in the list</source>
        <translation>Variable „%1“ in der Liste geändert</translation>
    </message>
    <message>
        <source>One recipe uses the variable “%1”.

Shall it be called “%2” there too?</source>
        <translation>Ein Rezept verwendet die Variable „%1“.

Soll sie auch dort „%2“ heißen?</translation>
    </message>
    <message>
        <source>%3 recipes use the variable “%1”.

Shall it be called “%2” there too?</source>
        <translation>%3 Rezepte verwenden die Variable „%1“.

Soll sie auch dort „%2“ heißen?</translation>
    </message>
    <message>
        <source>Variable “%1” renamed to “%2”</source>
        <translation>Variable „%1“ umbenannt in „%2“</translation>
    </message>
    <message>
        <source>Variable “%1” added to the list</source>
        <translation>Variable „%1“ in die Liste aufgenommen</translation>
    </message>
    <message>
        <source>Recipes that use the variable “%1”: %2.

Delete it from the list nevertheless?</source>
        <translation>Rezepte, die die Variable „%1“ verwenden: %2.

Trotzdem aus der Liste löschen?</translation>
    </message>
    <message>
        <source>Of these %1 variables, %2 are used in recipes.

Delete them from the list nevertheless?</source>
        <translation>Von diesen %1 Variablen werden %2 in Rezepten verwendet.

Trotzdem aus der Liste löschen?</translation>
    </message>
    <message>
        <source>Variable “%1” deleted from the list</source>
        <translation>Variable „%1“ aus der Liste gelöscht</translation>
    </message>
    <message>
        <source>%1 variables deleted from the list</source>
        <translation>%1 Variablen aus der Liste gelöscht</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Variables pasted into the list</source>
        <translation>Variablen in die Liste eingefügt</translation>
    </message>
    <message>
        <source>Import Variables</source>
        <translation>Variablen importieren</translation>
    </message>
    <message>
        <source>Variable lists (*.csv *.txt *.xml)</source>
        <translation>Variablenlisten (*.csv *.txt *.xml)</translation>
    </message>
    <message>
        <source>Variables imported: %1</source>
        <translation>Variablen importiert: %1</translation>
    </message>
    <message>
        <source>Export Variables</source>
        <translation>Variablen exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>%1 variables exported: %2</source>
        <translation>%1 Variablen exportiert: %2</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Shows the variables with all of these words, and none with &quot;-&quot;</source>
        <translation>Zeigt die Variablen mit all diesen Wörtern und keinem mit „-“</translation>
    </message>
    <message>
        <source>Shows the variables that so many recipes use; 0: the unused ones</source>
        <translation>Zeigt die Variablen, die so viele Rezepte verwenden; 0: die unbenutzten</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>&amp;Kodierung:</translation>
    </message>
    <message>
        <source>(recognised)</source>
        <translation>(erkannt)</translation>
    </message>
    <message>
        <source>What changes</source>
        <translation>Was sich ändert</translation>
    </message>
    <message>
        <source>New ones</source>
        <translation>Neue</translation>
    </message>
    <message>
        <source>Changed ones</source>
        <translation>Geänderte</translation>
    </message>
    <message>
        <source>Unchanged ones</source>
        <translation>Unveränderte</translation>
    </message>
    <message>
        <source>Shown variables</source>
        <translation>Gezeigte Variablen</translation>
    </message>
    <message>
        <source>What the import does</source>
        <translation>Was der Import bewirkt</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Liest …</translation>
    </message>
    <message>
        <source>%1 new, %2 changed, %3 unchanged</source>
        <translation>%1 neu, %2 geändert, %3 unverändert</translation>
    </message>
    <message>
        <source>and %1 more of these</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Cancelled: nothing was imported</source>
        <translation>Abgebrochen: Es wurde nichts importiert</translation>
    </message>
    <message>
        <source>1 variable</source>
        <translation>1 Variable</translation>
    </message>
    <message>
        <source>%1 variables</source>
        <translation>%1 Variablen</translation>
    </message>
</context>
</TS>
