// SPDX-License-Identifier: MIT
#pragma once

#include "automation/sentence.h"

/// All that is said of a project's content; quotes as they are usual in the two languages.
namespace hx::project::sentence {

using automation::Sentence;

// --- what is wrong; %1, %2, ... are names of recipes and variables, of columns or numbers
inline constexpr Sentence damaged{"The file is damaged: %1.", "Die Datei ist beschädigt: %1."};
inline constexpr Sentence unknownInColumn{"%1 names the variable \"%2\", which is not in the variable list.",
                                          "%1 nennt die Variable „%2“, die nicht in der Variablenliste steht."};
inline constexpr Sentence unknownVariable{"The variable \"%1\" is not in the variable list.",
                                          "Die Variable „%1“ steht nicht in der Variablenliste."};
inline constexpr Sentence missingSubRecipe{"The sub-recipe with the ID %1 does not exist.",
                                           "Das Unterrezept mit der Nummer %1 gibt es nicht."};
inline constexpr Sentence noFileName{"The sub-recipe%1 has no variable for its file name.",
                                     "Das Unterrezept%1 hat keine Variable für seinen Dateinamen."};
inline constexpr Sentence quoted{" \"%1\"", " „%1“"};
inline constexpr Sentence noRecipe{"The recipe with the ID %1, to which the member belongs, does not exist.",
                                   "Das Rezept mit der Nummer %1, zu dem das Element gehört, gibt es nicht."};
inline constexpr Sentence sharedTrigger{"The trigger variable \"%1\" (%2) also triggers %3.",
                                        "Die Triggervariable „%1“ (%2) löst auch %3 aus."};
inline constexpr Sentence trigger{"\"%1\" (%2)", "„%1“ (%2)"};
inline constexpr Sentence cycle{"The recipe contains itself: %1.", "Das Rezept enthält sich selbst: %1."};
inline constexpr Sentence named{"\"%1\"", "„%1“"};

// --- what to do about it
inline constexpr Sentence goBack{"Go back to a copy of it; \"hxrecipe export\" saves what can still be read.",
                                 "Eine Kopie der Datei nehmen; „hxrecipe export“ rettet, was noch zu lesen ist."};
inline constexpr Sentence addVariable{"Add the variable to the list or choose another one.",
                                      "Die Variable in die Liste aufnehmen oder eine andere wählen."};
inline constexpr Sentence chooseRecipe{"Delete the member or choose an existing recipe.",
                                       "Das Element löschen oder ein vorhandenes Rezept wählen."};
inline constexpr Sentence chooseFileName{
    "Choose one, or let the recipe save the values of its sub-recipes.",
    "Eine wählen, oder das Rezept die Werte seiner Unterrezepte speichern lassen."};
inline constexpr Sentence deleteMember{"Delete the member.", "Das Element löschen."};
inline constexpr Sentence ownTrigger{"Give each recipe a trigger of its own.",
                                     "Jedem Rezept einen eigenen Trigger geben."};
inline constexpr Sentence breakCycle{"Delete one of these sub-recipes.", "Eines dieser Unterrezepte löschen."};

// --- why nothing is replaced; %1 is the text, %2 what it would become, %3 the reason
inline constexpr Sentence notReplaced{"“%1” cannot become “%2”: %3", "„%1“ kann nicht „%2“ werden: %3"};
inline constexpr Sentence tooLong{"at most %1 characters are possible.", "höchstens %1 Zeichen sind möglich."};
inline constexpr Sentence taken{"the name is there already.", "diesen Namen gibt es schon."};
inline constexpr Sentence noName{"a name is needed.", "ein Name ist nötig."};
inline constexpr Sentence changedSince{"it has been changed meanwhile. Nothing was replaced.",
                                       "es wurde inzwischen geändert. Es wurde nichts ersetzt."};

// --- why no recipes are made; %1 is a name or pattern, %2 a number
inline constexpr Sentence notMade{"There is a recipe “%1” already. Nothing was changed.",
                                  "Ein Rezept „%1“ gibt es schon. Es wurde nichts geändert."};
inline constexpr Sentence noRange{"“%1” needs a range of numbers such as {1..12}.",
                                  "„%1“ braucht einen Zahlenbereich wie {1..12}."};
inline constexpr Sentence otherRange{"The range in “%1” must have %2 numbers, as many as the one in the name.",
                                     "Der Bereich in „%1“ muss %2 Zahlen haben, so viele wie der im Namen."};
inline constexpr Sentence seriesTooLong{"“%1” stands for more than %2 recipes.", "„%1“ steht für mehr als %2 Rezepte."};

}  // namespace hx::project::sentence
