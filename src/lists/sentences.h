// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that is said of a list of variables; names come with their quotation marks.
namespace hx::lists::sentence {

using automation::Sentence;

// --- files
inline constexpr Sentence isFolder{"%1 is a folder, not a file", "%1 ist ein Ordner, keine Datei"};
inline constexpr Sentence isNoFile{"%1 is not a file", "%1 ist keine Datei"};
inline constexpr Sentence cannotBeRead{"%1 cannot be read", "%1 kann nicht gelesen werden"};
inline constexpr Sentence cannotBeReadFor{"%1 cannot be read: %2", "%1 kann nicht gelesen werden: %2"};
inline constexpr Sentence isProject{"%1 is a project, not a list of variables",
                                    "%1 ist ein Projekt, keine Variablenliste"};
inline constexpr Sentence tooLarge{"%1 is larger than 4 GB", "%1 ist größer als 4 GB"};
inline constexpr Sentence unknownEncoding{"the encoding %1 is unknown", "die Zeichenkodierung %1 ist unbekannt"};
inline constexpr Sentence noText{"the byte 0x%1 is no text in %2", "das Byte 0x%1 ist kein Text in %2"};

// --- CSV
inline constexpr Sentence recordTooLong{"the record is longer than 1 MB; is a quotation mark not closed?",
                                        "der Datensatz ist länger als 1 MB; fehlt ein schließendes Anführungszeichen?"};
inline constexpr Sentence quoteWithin{
    "a quotation mark within a field; the whole field must be in quotation marks, and this one doubled",
    "ein Anführungszeichen in einem Feld; das ganze Feld muss in Anführungszeichen stehen und dieses doppelt"};
inline constexpr Sentence quoteOpen{"the quotation mark that begins a field is not closed",
                                    "das Anführungszeichen, mit dem ein Feld beginnt, wird nicht geschlossen"};
inline constexpr Sentence sameMeaning{"two columns mean the same: %1 and %2",
                                      "zwei Spalten bedeuten dasselbe: %1 und %2"};
inline constexpr Sentence noNameColumn{"no column is headed \"Name\" or \"Variable\"",
                                       "keine Spalte ist mit „Name“ oder „Variable“ überschrieben"};
inline constexpr Sentence moreThanHeader{"%1 columns; there are %2 in the header",
                                         "%1 Spalten; in der Kopfzeile sind es %2"};
inline constexpr Sentence moreThanThree{"%1 columns; there are %2: name, type, comment",
                                        "%1 Spalten; es gibt %2: Name, Typ, Kommentar"};
inline constexpr Sentence noTags{"of no line below the column %1 says that it is a tag",
                                 "von keiner Zeile darunter sagt die Spalte %1, dass sie eine Variable ist"};
inline constexpr Sentence lineBeforeHeader{"the line before the header is not read",
                                           "die Zeile vor der Kopfzeile wird nicht gelesen"};
inline constexpr Sentence linesBeforeHeader{"the %1 lines before the header are not read",
                                            "die %1 Zeilen vor der Kopfzeile werden nicht gelesen"};
inline constexpr Sentence columnNotRead{"the column %1 is not read", "die Spalte %1 wird nicht gelesen"};
inline constexpr Sentence columnsNotRead{"the columns %1 are not read", "die Spalten %1 werden nicht gelesen"};
inline constexpr Sentence otherLines{"lines that are no tags are not read: %1",
                                     "Zeilen, die keine Variablen sind, werden nicht gelesen: %1"};

// --- variables; %1 is the field
inline constexpr Sentence noTable{"There is no table \"%1\" in %2", "Die Tabelle „%1“ fehlt in %2"};
inline constexpr Sentence noColumn{"Table \"%1\" has no column \"%2\".", "Die Tabelle „%1“ hat keine Spalte „%2“."};
inline constexpr Sentence noName{"\"Name\": a name is missing", "„Name“: Ein Name fehlt"};
inline constexpr Sentence controlCharacters{"%1: %2 has control characters", "%1: %2 enthält Steuerzeichen"};
inline constexpr Sentence tooLong{"%1: %2 is longer than %3 characters", "%1: %2 ist länger als %3 Zeichen"};
inline constexpr Sentence givenTwice{"\"Name\": %1 is on line %2 too, with another type or comment",
                                     "„Name“: %1 steht auch in Zeile %2, mit anderem Typ oder Kommentar"};

// --- PLCopen
inline constexpr Sentence noXml{"this is no XML: %1", "das ist kein XML: %1"};
inline constexpr Sentence noPlcopen{"this is no PLCopen project: the root element is <%1>",
                                    "das ist kein PLCopen-Projekt: das oberste Element ist <%1>"};
inline constexpr Sentence declaredTwice{"the type %1 is declared more than once: on line %2 and on line %3",
                                        "der Typ %1 ist mehrfach deklariert: in Zeile %2 und in Zeile %3"};
inline constexpr Sentence programNoName{"\"name\": a program has no name", "„name“: Ein Programm hat keinen Namen"};
inline constexpr Sentence variableNoName{"\"name\": a variable has no name", "„name“: Eine Variable hat keinen Namen"};
inline constexpr Sentence variableNoType{"\"type\": the variable %1 has no type",
                                         "„type“: Die Variable %1 hat keinen Typ"};
inline constexpr Sentence noType{"\"type\": %1 has no type", "„type“: %1 hat keinen Typ"};
inline constexpr Sentence typeNoName{"\"type\": %1 has a type without a name", "„type“: %1 hat einen Typ ohne Namen"};
inline constexpr Sentence tooManyParts{"the variables up to here have more than %1 parts",
                                       "die Variablen bis hierher haben mehr als %1 Teile"};
inline constexpr Sentence tooDeep{"the types are nested too deeply", "die Typen sind zu tief verschachtelt"};
inline constexpr Sentence emptyType{"the type %1 says nothing about itself", "der Typ %1 sagt nichts über sich"};
inline constexpr Sentence containsItself{"the type %1 contains itself: %2", "der Typ %1 enthält sich selbst: %2"};
inline constexpr Sentence arrayNoType{"\"baseType\": the array %1 has no type",
                                      "„baseType“: Das Array %1 hat keinen Typ"};
inline constexpr Sentence arrayEnds{"\"upper\": the array %1 ends before it begins",
                                    "„upper“: Das Array %1 endet, bevor es beginnt"};
inline constexpr Sentence arrayNoDimension{"\"dimension\": the array %1 has none",
                                           "„dimension“: Das Array %1 hat keine"};
inline constexpr Sentence typeUnknown{"line %1: %2 is left out: its type %3 is unknown",
                                      "Zeile %1: %2 wird ausgelassen: der Typ %3 ist unbekannt"};
inline constexpr Sentence arrayTooLarge{"line %1: %2 is left out: the array has more than %3 elements",
                                        "Zeile %1: %2 wird ausgelassen: das Array hat mehr als %3 Elemente"};
inline constexpr Sentence boundNoNumber{"line %1: %2 is left out: the bound %3 of the array is no number",
                                        "Zeile %1: %2 wird ausgelassen: die Grenze %3 des Arrays ist keine Zahl"};
inline constexpr Sentence undeclared{"the type %1 is not declared in the file; %2 of it taken as they are",
                                     "der Typ %1 ist in der Datei nicht deklariert; %2 davon wie sie sind übernommen"};
inline constexpr Sentence cutTypes{"%1 types cut to %2 characters", "%1 Typen auf %2 Zeichen gekürzt"};
inline constexpr Sentence cutComments{"%1 comments cut to %2 characters", "%1 Kommentare auf %2 Zeichen gekürzt"};

}  // namespace hx::lists::sentence
