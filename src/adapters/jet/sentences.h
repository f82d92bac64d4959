// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that the store tells its user.
namespace hx::jet::sentence {

using automation::Sentence;

// --- the file, %1
inline constexpr Sentence locked{"The file '%1' is locked by another program.",
                                 "Die Datei '%1' ist von einem anderen Programm gesperrt."};
inline constexpr Sentence writeProtected{"The file '%1' is write-protected.", "Die Datei '%1' ist schreibgeschützt."};
inline constexpr Sentence inUse{
    "The project '%1' can only be read: another program has it open on the computer \"%2\", as the file with the "
    "extension .ldb beside it tells. If none has, delete that file.",
    "Das Projekt '%1' kann nur gelesen werden: ein anderes Programm hat es auf dem Rechner \"%2\" geöffnet, wie die "
    "Datei mit der Endung .ldb daneben sagt. Hat es keines geöffnet, löschen Sie diese Datei."};
inline constexpr Sentence brokenReadOnly{
    "The file '%1' cannot be read: another program was ended while it wrote, and what it wrote cannot be taken back, "
    "as "
    "the file is write-protected.",
    "Die Datei '%1' kann nicht gelesen werden: ein anderes Programm wurde beim Schreiben beendet, und was es schrieb, "
    "kann nicht zurückgenommen werden, da die Datei schreibgeschützt ist."};
inline constexpr Sentence notWhole{"The changes to '%1' were not carried out as a whole; they are taken back.",
                                   "Die Änderungen an '%1' wurden nicht ganz ausgeführt; sie werden zurückgenommen."};
inline constexpr Sentence notConfirmed{
    "The changes to '%1' are stored, but the disk does not confirm that it keeps them.",
    "Die Änderungen an '%1' sind gespeichert, aber der Datenträger bestätigt nicht, dass er sie behält."};
inline constexpr Sentence tooLarge{
    "The project '%1' is full: a Jet database holds two gigabytes at most. \"hxrecipe convert\" makes a project of it "
    "that holds more.",
    "Das Projekt '%1' ist voll: eine Jet-Datenbank fasst höchstens zwei Gigabyte. \"hxrecipe convert\" macht daraus "
    "ein "
    "Projekt, das mehr fasst."};
inline constexpr Sentence jet3{
    "The project '%1' is a Jet 3 database, which this program does not read. The studio that made it can convert it.",
    "Das Projekt '%1' ist eine Jet-3-Datenbank, die dieses Programm nicht liest. Das Studio, das es gemacht hat, kann "
    "es umwandeln."};
inline constexpr Sentence laterFormat{
    "The project '%1' is a database of the format that came after Jet 4, which this program does not read.",
    "Das Projekt '%1' ist eine Datenbank des Formats, das auf Jet 4 folgte; dieses Programm liest es nicht."};
inline constexpr Sentence noDatabase{"The file '%1' is not a Jet database.", "Die Datei '%1' ist keine Jet-Datenbank."};
inline constexpr Sentence encrypted{"The project '%1' is encrypted, which this program does not read.",
                                    "Das Projekt '%1' ist verschlüsselt; dieses Programm liest es nicht."};
inline constexpr Sentence hasPassword{
    "The project '%1' has a database password, with which this program does not open it.",
    "Das Projekt '%1' hat ein Datenbankkennwort, mit dem dieses Programm es nicht öffnet."};
inline constexpr Sentence valueTooLong{"A value in the file '%1' is too long.",
                                       "Ein Wert in der Datei '%1' ist zu lang."};

// --- what is damaged on page %1
inline constexpr Sentence noPage{"page %1 is missing", "Seite %1 fehlt"};
inline constexpr Sentence noDataPage{"page %1 holds no rows", "Seite %1 enthält keine Zeilen"};
inline constexpr Sentence rowsOverlap{"the rows on page %1 overlap", "die Zeilen auf Seite %1 überlappen sich"};
inline constexpr Sentence noRow{"a row on page %1 is none", "eine Zeile auf Seite %1 ist keine"};
inline constexpr Sentence noUsageMap{"page %1 has no usage map", "Seite %1 hat keine Belegungsliste"};
inline constexpr Sentence noDefinition{"page %1 does not define a table", "Seite %1 beschreibt keine Tabelle"};
inline constexpr Sentence otherOwner{"page %1 belongs to another table", "Seite %1 gehört zu einer anderen Tabelle"};
inline constexpr Sentence noIndexPage{"page %1 belongs to no such index", "Seite %1 gehört zu keinem solchen Index"};
inline constexpr Sentence notOwned{"page %1 is used by what does not own it",
                                   "Seite %1 wird benutzt von dem, dem sie nicht gehört"};
inline constexpr Sentence wrongOrder{"the entries of the index on page %1 are in no order",
                                     "die Einträge des Index auf Seite %1 sind nicht geordnet"};
inline constexpr Sentence wrongEntries{"the index on page %1 does not tell of all rows, or of others",
                                       "der Index auf Seite %1 nennt nicht alle Zeilen oder andere"};
inline constexpr Sentence wrongCount{"the table on page %1 counts its rows wrongly",
                                     "die Tabelle auf Seite %1 zählt ihre Zeilen falsch"};
inline constexpr Sentence freeAndUsed{"page %1 is used and yet free", "Seite %1 ist benutzt und doch frei"};

// --- the rows
inline constexpr Sentence notConverted{"The value does not fit column \"%1\".",
                                       "Der Wert passt nicht in die Spalte \"%1\"."};
inline constexpr Sentence tooLong{"The text is too long for column \"%1\", which holds %2 characters.",
                                  "Der Text ist zu lang für die Spalte \"%1\", die %2 Zeichen fasst."};
inline constexpr Sentence rowTooLong{
    "The row of table \"%1\" is too long: all its short values together take more than "
    "4060 bytes.",
    "Die Zeile der Tabelle \"%1\" ist zu lang: alle ihre kurzen Werte zusammen "
    "brauchen mehr als 4060 Bytes."};
inline constexpr Sentence keyTooLong{"The value is too long for an index of its table.",
                                     "Der Wert ist zu lang für einen Index seiner Tabelle."};
inline constexpr Sentence noMoreNumbers{"Table \"%1\" has no more numbers for new rows.",
                                        "Die Tabelle \"%1\" hat keine Nummern mehr für neue Zeilen."};
inline constexpr Sentence unknownOrder{
    "Table \"%1\" can only be read: its index \"%2\" is in the sort order %3, which this program does not know.",
    "Die Tabelle \"%1\" kann nur gelesen werden: ihr Index \"%2\" hat die Sortierreihenfolge %3, die dieses Programm "
    "nicht kennt."};
inline constexpr Sentence needsRow{
    "The row cannot be stored: the relation \"%1\" asks for a row of table \"%2\" that there is not.",
    "Die Zeile kann nicht gespeichert werden: die Beziehung \"%1\" verlangt eine Zeile der Tabelle \"%2\", die es "
    "nicht "
    "gibt."};
inline constexpr Sentence hasRows{
    "The row cannot be deleted or changed: by the relation \"%1\" rows of table \"%2\" refer to it.",
    "Die Zeile kann nicht gelöscht oder geändert werden: nach der Beziehung \"%1\" beziehen sich Zeilen der Tabelle "
    "\"%2\" auf sie."};

// --- what cannot be opened
inline constexpr Sentence isLinked{
    "The table \"%1\" is linked to the database '%2', which this program does not open.",
    "Die Tabelle \"%1\" ist mit der Datenbank '%2' verknüpft, die dieses Programm nicht öffnet."};
inline constexpr Sentence isQuery{"\"%1\" is a stored query, which this program does not run.",
                                  "\"%1\" ist eine gespeicherte Abfrage, die dieses Programm nicht ausführt."};

}  // namespace hx::jet::sentence
