// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that undoing tells the user; quotes as they are usual in the two languages.
namespace hx::history::sentence {

using automation::Sentence;

// --- why a step is not undone or done again; %1 is the table, %2 the row's name or number
inline constexpr Sentence rowChanged{"“%2” in %1 has been changed since. Nothing was undone.",
                                     "„%2“ in %1 wurde inzwischen geändert. Es wurde nichts zurückgenommen."};
inline constexpr Sentence rowGone{"“%2” in %1 has been deleted since. Nothing was undone.",
                                  "„%2“ in %1 wurde inzwischen gelöscht. Es wurde nichts zurückgenommen."};
inline constexpr Sentence rowTaken{"“%2” in %1 cannot be put back: %3",
                                   "„%2“ in %1 kann nicht zurückgeholt werden: %3"};
inline constexpr Sentence otherColumns{"The table %1 has other columns by now. Nothing was undone.",
                                       "Die Tabelle %1 hat inzwischen andere Spalten. Es wurde nichts "
                                       "zurückgenommen."};
inline constexpr Sentence noKey{"The rows of the table %1 have no key, so that its changes cannot be undone.",
                                "Die Zeilen der Tabelle %1 haben keinen Schlüssel, deshalb können ihre Änderungen "
                                "nicht zurückgenommen werden."};
inline constexpr Sentence lost{"Memory was short when this was recorded: it cannot be undone.",
                               "Beim Aufzeichnen fehlte Speicher: Dieser Schritt kann nicht zurückgenommen werden."};
inline constexpr Sentence damaged{"The record of the changes is damaged.",
                                  "Die Aufzeichnung der Änderungen ist beschädigt."};

// --- why no copy of the day is kept; %1 is the project
inline constexpr Sentence tooLargeToCopy{"“%1” is larger than all copies together may be.",
                                         "„%1“ ist größer, als alle Kopien zusammen sein dürfen."};

// --- what a step did that may not have been meant; %1 is the recipe, %2 a number
inline constexpr Sentence stillIncluded{"“%1” was deleted. Members that still name it as a sub-recipe: %2.",
                                        "„%1“ wurde gelöscht. Elemente, die es noch als Unterrezept nennen: %2."};
inline constexpr Sentence subRecipesDropped{"The choice of variables has also removed sub-recipes of “%1”: %2.",
                                            "Die Auswahl der Variablen hat auch Unterrezepte von „%1“ entfernt: %2."};
inline constexpr Sentence includesItself{"“%1” includes itself now.", "„%1“ enthält sich jetzt selbst."};

// --- names of steps; %1 and %2 are names of recipes or variables, %3 a number of rows
inline constexpr Sentence recipeAdded{"Recipe “%1” added", "Rezept „%1“ angelegt"};
inline constexpr Sentence recipeAddedWith{"Recipe “%1” added, %3 elements", "Rezept „%1“ angelegt, %3 Elemente"};
inline constexpr Sentence recipeDeleted{"Recipe “%1” deleted", "Rezept „%1“ gelöscht"};
inline constexpr Sentence recipeDeletedWith{"Recipe “%1” deleted, %3 elements", "Rezept „%1“ gelöscht, %3 Elemente"};
inline constexpr Sentence recipeRenamed{"Recipe “%1” renamed to “%2”", "Rezept „%1“ in „%2“ umbenannt"};
inline constexpr Sentence recipeChanged{"Recipe “%1” changed", "Rezept „%1“ geändert"};
inline constexpr Sentence variableAdded{"Variable “%2” added to “%1”", "Variable „%2“ zu „%1“ hinzugefügt"};
inline constexpr Sentence variableRemoved{"Variable “%2” deleted from “%1”", "Variable „%2“ aus „%1“ gelöscht"};
inline constexpr Sentence variableChanged{"Variable changed: “%2” in “%1”", "Variable geändert: „%2“ in „%1“"};
inline constexpr Sentence subRecipeAdded{"Sub-recipe added to “%1”", "Unterrezept zu „%1“ hinzugefügt"};
inline constexpr Sentence subRecipeRemoved{"Sub-recipe deleted from “%1”", "Unterrezept aus „%1“ gelöscht"};
inline constexpr Sentence subRecipeChanged{"Sub-recipe changed in “%1”", "Unterrezept in „%1“ geändert"};
inline constexpr Sentence elementsAdded{"%3 elements added to “%1”", "%3 Elemente zu „%1“ hinzugefügt"};
inline constexpr Sentence elementsRemoved{"%3 elements deleted from “%1”", "%3 Elemente aus „%1“ gelöscht"};
inline constexpr Sentence elementsChanged{"Elements of “%1” changed: %3", "Elemente von „%1“ geändert: %3"};
inline constexpr Sentence listChanged{"Variable list changed: %3 variables", "Variablenliste geändert: %3 Variablen"};
inline constexpr Sentence manyChanged{"%1 recipes and %2 elements changed", "%1 Rezepte und %2 Elemente geändert"};
inline constexpr Sentence otherChanged{"%3 rows changed", "%3 Zeilen geändert"};
inline constexpr Sentence macroRun{"Macro “%1”", "Makro „%1“"};
inline constexpr Sentence named{"%1", "%1"};

}  // namespace hx::history::sentence
