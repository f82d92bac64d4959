// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that the provider tells its user.
namespace hx::sqlite::sentence {

using automation::Sentence;

// --- the file, %1
inline constexpr Sentence locked{"The file '%1' is locked by another program.",
                                 "Die Datei '%1' ist von einem anderen Programm gesperrt."};
inline constexpr Sentence writeProtected{"The file '%1' is write-protected.", "Die Datei '%1' ist schreibgeschützt."};
inline constexpr Sentence folderWriteProtected{"The folder of the file '%1' is write-protected.",
                                               "Der Ordner der Datei '%1' ist schreibgeschützt."};
inline constexpr Sentence moved{
    "The file '%1' was deleted, moved or replaced while it was open. Nothing can be stored in it any more.",
    "Die Datei '%1' wurde gelöscht, verschoben oder ersetzt, während sie geöffnet war. In ihr kann nichts mehr "
    "gespeichert werden."};
inline constexpr Sentence full{"The disk with the file '%1' is full.", "Der Datenträger mit der Datei '%1' ist voll."};
inline constexpr Sentence broken{"The disk does not read or write the file '%1' (input/output error).",
                                 "Der Datenträger liest oder schreibt die Datei '%1' nicht (Ein-/Ausgabefehler)."};
inline constexpr Sentence damaged{"The file '%1' is damaged.", "Die Datei '%1' ist beschädigt."};
inline constexpr Sentence damagedSo{
    "The file '%1' is damaged: %2. \"hxrecipe export\" saves what can still be read.",
    "Die Datei '%1' ist beschädigt: %2. \"hxrecipe export\" sichert, was sich noch lesen lässt."};
inline constexpr Sentence ended{
    "The work in the file '%1' was ended: it takes too long, or was stopped.",
    "Die Arbeit in der Datei '%1' wurde beendet: sie dauert zu lange oder wurde angehalten."};
inline constexpr Sentence tooLong{"A value in the file '%1' is too long.", "Ein Wert in der Datei '%1' ist zu lang."};
inline constexpr Sentence noProject{"The file '%1' is not a project file.", "Die Datei '%1' ist keine Projektdatei."};
inline constexpr Sentence notOpened{"The file '%1' or its journal beside it cannot be opened.",
                                    "Die Datei '%1' oder ihr Journal daneben kann nicht geöffnet werden."};
inline constexpr Sentence noPermission{"No permission for the file '%1'.", "Keine Berechtigung für die Datei '%1'."};
inline constexpr Sentence noReadPermission{"No permission to read the file '%1'.",
                                           "Keine Berechtigung, die Datei '%1' zu lesen."};
inline constexpr Sentence noMemory{"Not enough memory for the file '%1'.",
                                   "Der Speicher reicht nicht für die Datei '%1'."};
inline constexpr Sentence unusable{"The file '%1' cannot be used: %2.",
                                   "Die Datei '%1' kann nicht benutzt werden: %2."};
inline constexpr Sentence exists{"The file '%1' exists already.", "Die Datei '%1' gibt es schon."};
inline constexpr Sentence missing{"Could not find file '%1'.", "Die Datei '%1' wurde nicht gefunden."};
inline constexpr Sentence unreachable{"The file '%1' cannot be reached: %2.",
                                      "Die Datei '%1' ist nicht erreichbar: %2."};
inline constexpr Sentence folder{"'%1' is a folder, not a project file.", "'%1' ist ein Ordner, keine Projektdatei."};
inline constexpr Sentence noFile{"'%1' is not a file.", "'%1' ist keine Datei."};
inline constexpr Sentence newer{
    "The project '%1' was made by a newer program (format %2; this program reads up to format %3).",
    "Das Projekt '%1' stammt von einem neueren Programm (Format %2; dieses Programm liest bis Format %3)."};
inline constexpr Sentence tableIsNone{"The project '%1' cannot be used: \"%2\" in it is no table.",
                                      "Das Projekt '%1' kann nicht benutzt werden: \"%2\" darin ist keine Tabelle."};
inline constexpr Sentence tableHasTrigger{
    "The project '%1' cannot be used: its table \"%2\" has the trigger \"%3\", which this program does not run.",
    "Das Projekt '%1' kann nicht benutzt werden: seine Tabelle \"%2\" hat den Trigger \"%3\", den dieses Programm "
    "nicht "
    "ausführt."};
inline constexpr Sentence takenBack{
    "%1 All changes to '%2' since then were taken back; nothing of them is stored.",
    "%1 Alle Änderungen an '%2' seitdem wurden zurückgenommen; nichts davon ist gespeichert."};

// --- the rows
inline constexpr Sentence recipeExists{"There is a recipe \"%1\" already.", "Ein Rezept \"%1\" gibt es schon."};
inline constexpr Sentence memberExists{"The recipe has the variable \"%1\" already.",
                                       "Das Rezept hat die Variable \"%1\" schon."};
inline constexpr Sentence subRecipeExists{
    "The recipe has this sub-recipe with the variable \"%1\" for its file name already.",
    "Das Rezept hat dieses Unterrezept mit der Variablen \"%1\" für den Dateinamen schon."};
inline constexpr Sentence variableExists{"There is a variable \"%1\" already.", "Eine Variable \"%1\" gibt es schon."};
inline constexpr Sentence valueExists{"The value \"%1\" exists already in column \"%2\" of table \"%3\".",
                                      "Den Wert \"%1\" gibt es schon in der Spalte \"%2\" der Tabelle \"%3\"."};
inline constexpr Sentence someValueExists{"The value exists already in column \"%1\".",
                                          "Den Wert gibt es schon in der Spalte \"%1\"."};
inline constexpr Sentence valueMissing{"Column \"%1\" needs a value.", "Die Spalte \"%1\" braucht einen Wert."};
inline constexpr Sentence ruleBroken{"The row breaks a rule of its table (%1).",
                                     "Die Zeile verletzt eine Regel ihrer Tabelle (%1)."};
inline constexpr Sentence rowDeleted{"The row was deleted by another meanwhile.",
                                     "Die Zeile wurde inzwischen von jemand anderem gelöscht."};
inline constexpr Sentence rowChanged{
    "The row was changed by another meanwhile: \"%1\" does not hold any more what was read.",
    "Die Zeile wurde inzwischen von jemand anderem geändert: \"%1\" enthält nicht mehr, was gelesen wurde."};

// --- the commands
inline constexpr Sentence noTable{"There is no table \"%1\".", "Es gibt keine Tabelle \"%1\"."};
inline constexpr Sentence noColumn{"There is no column \"%1\".", "Es gibt keine Spalte \"%1\"."};
inline constexpr Sentence notCarriedOut{"The command cannot be carried out: %1.",
                                        "Der Befehl kann nicht ausgeführt werden: %1."};

}  // namespace hx::sqlite::sentence
