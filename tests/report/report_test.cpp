// SPDX-License-Identifier: MIT
#include "report/report.h"

#include <gtest/gtest.h>

#include "report_fixture.h"

namespace hx::report {
namespace {

using Lines = std::vector<std::string>;

project::ProjectData one(const support::RecipeDraft& data) { return projectOf({data}); }

Lines propertiesOf(const PropertyGroup& group) {
    Lines lines = {"[" + group.caption + "]"};
    for (const Property& property : group.properties) lines.push_back(property.caption + "=" + property.value);
    return lines;
}

support::RecipeDraft relativeRecipe() {
    support::RecipeDraft data = recipe(1, "Cola");
    data.fileNameVariable = "Rezept.Name";
    data.filePath = "<ProjectDir>\\Rezepte";
    data.enabled = false;
    data.loadTrigger = "Laden";
    data.normFactor = 1.5;
    data.factorVariable = "Faktor";
    data.writeThrough = true;
    return data;
}

TEST(ReportSection, PropertiesHaveTheCaptionsOfTheDialog) {
    const Report report(one(relativeRecipe()), textsIn(german), "/plant/Anlage.hxs", someDay);
    const Section section = report.section(0);
    ASSERT_EQ(section.groups.size(), 2u);
    EXPECT_EQ(propertiesOf(section.groups[0]), (Lines{"[Standard]", "Rezeptdateiname=Rezept.Name",
                                                      "Beschreibungsvariable=", "Rezeptdateipfad=<ProjectDir>\\Rezepte",
                                                      "Dateiendung=", "Kommentar=", "Definition aktiv=nein"}));
    EXPECT_EQ(propertiesOf(section.groups[1]),
              (Lines{"[Erweitert]", "Ladetrigger=Laden", "Speichertrigger=", "Lesetrigger=", "Schreibtrigger=",
                     "Rezeptwerte=relativ", "Normfaktor=1.5", "Sollfaktorvariable=Faktor"}));
}

TEST(ReportSection, PropertiesSpeakEnglish) {
    const Report report(one(relativeRecipe()), textsIn(english), "/plant/Anlage.hxs", someDay);
    const Section section = report.section(0);
    EXPECT_EQ(propertiesOf(section.groups[0])[1], "Recipe File Name=Rezept.Name");
    EXPECT_EQ(propertiesOf(section.groups[0])[6], "Definition active=no");
    EXPECT_EQ(propertiesOf(section.groups[1])[5], "Recipe Value=relative");
    EXPECT_EQ(section.switchesCaption, "Options");
}

TEST(ReportSection, ValuesWithoutAFactorAreAbsolute) {
    const Report report(one(recipe(1, "Cola")), textsIn(german), "Anlage.hxs", someDay);
    const Lines lines = propertiesOf(report.section(0).groups[1]);
    EXPECT_EQ(lines[5], "Rezeptwerte=absolut");
    EXPECT_EQ(lines[6], "Normfaktor=0");
}

TEST(ReportSection, OptionsAreSwitches) {
    const Report report(one(relativeRecipe()), textsIn(german), "Anlage.hxs", someDay);
    Lines lines;
    for (const Switch& one : report.section(0).switches) lines.push_back(one.caption + (one.on ? "=1" : "=0"));
    EXPECT_EQ(lines, (Lines{"geänderte Werte direkt schreiben=1", "geänderte Werte direkt speichern=0",
                            "Unterrezeptwerte hier speichern=0", "Änderungshistorie aktivieren=0",
                            "Rezeptdateien verschlüsseln=0"}));
}

TEST(ReportSection, BranchesHaveTheNameFileAndNoteOfTheirSubRecipe) {
    support::RecipeDraft mix = recipe(7, "Mix", {3, 99, 7});
    mix.subRecipes[0].fileVariable = "Datei";
    const Report report(projectOf({recipe(3, "Basis", {99}), mix}), textsIn(german), "Anlage.hxs", someDay);
    Lines lines;
    for (const project::Branch& branch : report.section(1).tree.branches) {
        lines.push_back(std::to_string(branch.depth) + " " + report.branchName(branch) + "|" +
                        std::string(report.branchFile(branch)) + "|" + report.branchNote(branch));
    }
    EXPECT_EQ(lines,
              (Lines{"0 Basis|Datei|", "1 Rezept Nummer 99||fehlt", "0 Rezept Nummer 99||fehlt", "0 Mix||Kreis"}));
}

TEST(ReportSection, IndirectUsesStandInTheOrderOfTheReport) {
    // The nearest user comes last in the report.
    const Report report(
        projectOf({recipe(1, "A", {2}), recipe(2, "B", {4}), recipe(3, "C", {5}), recipe(4, "D", {3}), recipe(5, "E")}),
        textsIn(german), "Anlage.hxs", someDay);
    const project::Uses uses = report.section(4).uses;
    ASSERT_EQ(uses.direct().size(), 1U);
    EXPECT_EQ(report.nameOf(uses.direct()[0].recipe), "C");
    Lines lines;
    for (const project::Use& use : uses.indirect()) {
        lines.push_back(report.nameOf(use.recipe) + " through " + report.nameOf(use.through));
    }
    EXPECT_EQ(lines, (Lines{"A through B", "B through D", "D through C"}));
}

TEST(ReportSection, EndsWhereItWouldBecomeTooLong) {
    std::vector<support::RecipeDraft> recipes;
    const auto last = static_cast<std::int32_t>(Report::mostIndirect) + 5;
    for (std::int32_t id = 1; id < last; ++id) recipes.push_back(recipe(id, std::to_string(id), {id + 1}));
    recipes.push_back(recipe(last, "last", std::vector<std::int32_t>(Report::mostBranches + 1, 9999)));
    const Report report(projectOf(recipes), textsIn(german), "Anlage.hxs", someDay);
    std::size_t at = 0;
    while (report.nameOf(at) != "last") ++at;
    const Section end = report.section(at);
    EXPECT_EQ(end.tree.branches.size(), Report::mostBranches);
    EXPECT_TRUE(end.tree.cut);
    EXPECT_EQ(end.uses.indirect().size(), Report::mostIndirect);
    EXPECT_TRUE(end.uses.cut);
    at = 0;
    while (report.nameOf(at) != "1") ++at;
    EXPECT_EQ(report.section(at).tree.branches.size(), Report::deepest);
}

TEST(ReportFront, NamesProjectFileDateAndContent) {
    support::RecipeDraft mix = recipe(1, "Mix", {2});
    mix.variables.assign(1234, "x");
    for (const auto& [language, summary] :
         {std::pair{german,
                    Lines{"Projekt=Anlage 1", "Projektdatei=C:\\Plant\\Anlage 1.hxs", "Erstellt=05.03.2025, 14:07",
                          "Umfang=Rezepte: 2, Variablen: 1.234, Unterrezepte: 1"}},
          std::pair{english,
                    Lines{"Project=Anlage 1", "Project File=C:\\Plant\\Anlage 1.hxs", "Created=5 March 2025, 14:07",
                          "Content=Recipes: 2, variables: 1,234, sub-recipes: 1"}}}) {
        const Report report(projectOf({mix, recipe(2, "Sirup")}), textsIn(language), "C:\\Plant\\Anlage 1.hxs",
                            someDay);
        Lines lines = propertiesOf({"", report.summary()});
        lines.erase(lines.begin());
        EXPECT_EQ(lines, summary);
    }
}

TEST(ReportFront, NamesWhatTheReaderShouldLookAt) {
    const Report report(projectOf({recipe(1, "A", {2}), recipe(2, "B", {1, 77}), recipe(3, "C")}, 3), textsIn(german),
                        "Anlage.hxs", someDay);
    EXPECT_EQ(report.findings(),
              (Lines{"Rezeptelemente, die zu keinem Rezept gehören: 3", "„A“ ist in sich selbst enthalten (Kreis).",
                     "„B“ ist in sich selbst enthalten (Kreis).",
                     "„B“ enthält ein Unterrezept, das es nicht gibt (Nummer 77)."}));
}

TEST(ReportFront, SaysHowManyFindingsAreNotListed) {
    const Report report(one(recipe(1, "A", std::vector<std::int32_t>(Report::mostFindings + 3, 99))), textsIn(english),
                        "Anlage.hxs", someDay);
    ASSERT_EQ(report.findings().size(), Report::mostFindings + 1);
    EXPECT_EQ(report.findings().back(), "Further findings: 3. They are marked in the recipes.");
}

TEST(ReportNames, ARecipeWithoutANameIsSaidToHaveNone) {
    const Report report(one(recipe(1, "")), textsIn(german), "Anlage.hxs", someDay);
    EXPECT_EQ(report.nameOf(0), "(ohne Namen)");
}

TEST(ReportTexts, PlaceholdersTakeTheirValuesOnce) {
    EXPECT_EQ(filled("%1 and %2", {"%2", "b"}), "%2 and b");
    EXPECT_EQ(filled("100 % of %1, %3", {"a"}), "100 % of a, %3");
    EXPECT_EQ(filled("%", {"a"}), "%");
}

TEST(ReportTexts, EveryTextStandsInBothLanguages) {
    for (int i = 0; i <= static_cast<int>(Text::noRecipes); ++i) {
        for (const auto language : {german, english}) {
            EXPECT_NE(textsIn(language).text(static_cast<Text>(i)), "") << i;
        }
    }
}

TEST(ReportTexts, NumbersAreGroupedInThousands) {
    EXPECT_EQ(textsIn(german).number(999), "999");
    EXPECT_EQ(textsIn(german).number(1000), "1.000");
    EXPECT_EQ(textsIn(english).number(1234567), "1,234,567");
}

}  // namespace
}  // namespace hx::report
