// SPDX-License-Identifier: MIT
#include "report/report_texts.h"

#include <algorithm>
#include <ctime>

#include "automation/sentence.h"
#include "automation/text.h"

namespace hx::report {

namespace {

struct Entry {
    Text text;
    std::string_view german, english;
};

constexpr auto entries = std::to_array<Entry>({
    {Text::title, "Rezeptbericht", "Recipe Report"},
    {Text::project, "Projekt", "Project"},
    {Text::projectFile, "Projektdatei", "Project File"},
    {Text::created, "Erstellt", "Created"},
    {Text::content, "Umfang", "Content"},
    {Text::contentSummary, "Rezepte: %1, Variablen: %2, Unterrezepte: %3",
     "Recipes: %1, variables: %2, sub-recipes: %3"},
    {Text::selection, "Auswahl", "Selection"},
    {Text::selectionSummary, "nur die ausgewählten Rezepte und die darin enthaltenen",
     "the selected recipes only, and those in them"},
    {Text::contents, "Inhalt", "Contents"},
    {Text::findings, "Auffälligkeiten", "Findings"},
    {Text::findingCycle, "„%1“ ist in sich selbst enthalten (Kreis).", "“%1” is contained in itself (cycle)."},
    {Text::findingMissing, "„%1“ enthält ein Unterrezept, das es nicht gibt (Nummer %2).",
     "“%1” contains a sub-recipe that does not exist (number %2)."},
    {Text::findingOrphans, "Rezeptelemente, die zu keinem Rezept gehören: %1",
     "Recipe members that belong to no recipe: %1"},
    {Text::moreFindings, "Weitere Auffälligkeiten: %1. Sie sind bei den Rezepten gekennzeichnet.",
     "Further findings: %1. They are marked in the recipes."},
    {Text::notActive, "nicht aktiv", "not active"},
    {Text::noName, "(ohne Namen)", "(no name)"},
    {Text::variables, "Variablen", "Variables"},
    {Text::noVariables, "keine Variablen", "no variables"},
    {Text::noSubRecipes, "keine Unterrezepte", "no sub-recipes"},
    {Text::subRecipesCut, "… und weitere. Sie stehen bei den genannten Unterrezepten.",
     "… and more. They stand with the sub-recipes that are named here."},
    {Text::branchCycle, "Kreis", "cycle"},
    {Text::missingName, "Rezept Nummer %1", "recipe number %1"},
    {Text::branchMissing, "fehlt", "missing"},
    {Text::branchRepeated, "siehe oben", "see above"},
    {Text::branchDeeper, "weiter bei diesem Rezept", "continued with this recipe"},
    {Text::usedIn, "Verwendet in", "Used In"},
    {Text::usedThrough, "über %1", "through %1"},
    {Text::usesCut, "… und weitere", "… and more"},
    {Text::notUsed, "in keinem anderen Rezept", "in no other recipe"},
    {Text::notUsedHere, "in keinem anderen Rezept der Auswahl", "in no other recipe of the selection"},
    {Text::yes, "ja", "yes"},
    {Text::no, "nein", "no"},
    {Text::unknownSubject, "Über „%1“ gibt es keinen Bericht. Es gibt ihn über: %2",
     "There is no report on “%1”. There is one on: %2"},
    {Text::cannotMake, "Der Bericht kann nicht erstellt werden.", "The report cannot be made."},
    {Text::noRecipes, "Das Projekt „%1“ enthält keine Rezepte.", "The project “%1” contains no recipes."},
});

constexpr std::array<std::string_view, 12> months = {"January",   "February", "March",    "April",
                                                     "May",       "June",     "July",     "August",
                                                     "September", "October",  "November", "December"};

std::string twoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

}  // namespace

std::string filled(std::string_view pattern, std::initializer_list<std::string_view> values) {
    std::string result;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const auto number = at + 1 < pattern.size() ? static_cast<std::size_t>(pattern[at + 1] - '1') : values.size();
        if (pattern[at] != '%' || number >= values.size()) {
            result += pattern[at];
            continue;
        }
        result += *(values.begin() + number);
        ++at;
    }
    return result;
}

Moment Moment::now() {
    const std::time_t time = std::time(nullptr);
    const std::tm& local = *std::localtime(&time);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

bool Texts::isEnglish() const noexcept { return captions_.language() == automation::englishLcid; }

std::string Texts::text(Text text) const {
    const auto entry = std::ranges::find(entries, text, &Entry::text);
    return std::string(isEnglish() ? entry->english : entry->german);
}

std::string Texts::text(Text text, std::initializer_list<std::string_view> values) const {
    return filled(this->text(text), values);
}

std::string Texts::caption(std::int32_t resource) const {
    return std::string(automation::trim(automation::replaceAll(captions_.GetResource(resource), "&", "")));
}

std::string Texts::number(std::size_t value) const {
    std::string digits = std::to_string(value);
    constexpr std::size_t group = 3;
    for (std::size_t at = digits.size(); at > group;) {
        at -= group;
        digits.insert(at, isEnglish() ? "," : ".");
    }
    return digits;
}

std::string Texts::date(const Moment& moment) const {
    const std::string time = twoDigits(moment.hour) + ":" + twoDigits(moment.minute);
    const std::string year = std::to_string(moment.year);
    if (!isEnglish()) return twoDigits(moment.day) + "." + twoDigits(moment.month) + "." + year + ", " + time;
    const auto month = static_cast<std::size_t>(moment.month - 1) % months.size();
    return std::to_string(moment.day) + " " + std::string(months[month]) + " " + year + ", " + time;
}

}  // namespace hx::report
