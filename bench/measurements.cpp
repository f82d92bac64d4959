// SPDX-License-Identifier: MIT

// What each measurement compares, and what it must reach.
#include "bench/measurements.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "bench/subjects.h"
#include "project/generated_names.h"

namespace hx::bench {

namespace {

Row selectBig(const Project& project, int rounds) {
    namespace subject = select_recipe;
    const auto costs = compare(
        {subject::ours(project, bigRecipe), subject::peer(project, bigRecipe), subject::limit(project, bigRecipe)},
        rounds, fewRuns);
    return {"select the big recipe, count it, read 3 rows",
            costs[0],
            costs[1],
            costs[2],
            {.atMostOfLimit = 1.0, .atLeastPeer = 6.0, .atMostMegabytes = 10.0}};
}

Row selectSmall(const Project& project, int rounds) {
    namespace subject = select_recipe;
    const auto costs = compare({subject::ours(project, smallRecipe), subject::peer(project, smallRecipe),
                                subject::limit(project, smallRecipe)},
                               rounds, manyRuns);
    return {"select a recipe of 9 members", costs[0], costs[1], costs[2], {.atMostMilliseconds = 0.5}};
}

Row readPage(const Project& project, int rounds) {
    const auto costs = compare({read_page::ours(project), {}, read_page::limit(project)}, rounds, manyRuns);
    return {"read any 100 rows of the big recipe", costs[0], costs[1], costs[2], {.atMostMilliseconds = 1.0}};
}

Row readRecipes(const Project& project, int rounds) {
    const auto costs = compare({read_recipes::ours(project), read_recipes::peer(project), read_recipes::limit(project)},
                               rounds, fewRuns);
    return {"read number and name of all recipes", costs[0], costs[1], costs[2], {}};
}

Row findRecipe(const Project& project, int rounds, const std::string& name, const std::string& criterion) {
    const auto costs = compare({find_recipe::ours(project, criterion)}, rounds, fewRuns);
    return {name, costs[0], {}, {}, {}};
}

Row countAll(const Project& project, int rounds) {
    const auto costs = compare({statistic::ours(project), {}, statistic::limit(project)}, rounds, fewRuns);
    return {"count all recipes and members", costs[0], {}, costs[2], {}};
}

Row showFirstPage(const Project& project, int rounds) {
    const auto costs = compare({show_grid::firstPage(project)}, rounds, manyRuns);
    return {"show the first page of the selected big recipe", costs[0], {}, {}, {.atMostMilliseconds = 5.0}};
}

Row showAnyPage(const Project& project, int rounds) {
    const auto costs = compare({show_grid::anyPage(project)}, rounds, manyRuns);
    return {"scroll to any page of the big recipe", costs[0], {}, {}, {.atMostMilliseconds = 2.0}};
}

Row fillExplorer(const Project& project, int rounds) {
    const auto costs = compare({fill_explorer::ours(project), fill_explorer::peer(project)}, rounds, 1);
    return {"add all recipes to the explorer", costs[0], costs[1], {}, {.atLeastPeer = 4.0}};
}

Row filterExplorer(const Project& project, int rounds) {
    const auto costs = compare({filter_explorer::ours(project, false)}, rounds, manyRuns);
    return {"filter them by their names", costs[0], {}, {}, {.atMostMilliseconds = 50.0}};
}

Row filterOrdered(const Project& project, int rounds) {
    const auto costs = compare({filter_explorer::ours(project, true)}, rounds, manyRuns);
    return {"the same, ordered by their names", costs[0], {}, {}, {.atMostMilliseconds = 50.0}};
}

/// A project with as many variables as a large plant has, all of them in the big recipe.
Project plant(const Project& project) {
    constexpr std::int64_t variables = 100'000;
    const std::int64_t few = std::min<std::int64_t>(project.recipes, 1000);
    return makeProject(std::filesystem::path(project.path).parent_path().string(), few,
                       std::min(project.big, variables));
}

Row replaceVariables(const Project& project, int rounds) {
    namespace subject = replace_variables;
    const Project large = plant(project);
    const auto costs = compare({subject::ours(large), {}, subject::limit(large)}, rounds, fewRuns);
    return {"replace " + std::to_string(large.big) + " variables of a recipe",
            costs[0],
            {},
            costs[2],
            {.atMostOfLimit = 1.5}};
}

Row deleteRecipe(const Project& project, int rounds) {
    namespace subject = delete_recipe;
    const auto costs = compare({subject::ours(project), {}, subject::limit(project)}, rounds, 1);
    return {"delete the big recipe with its members", costs[0], {}, costs[2], {.atMostOfLimit = 2.0}};
}

Row recordDeletion(const Project& project, int rounds) {
    const auto costs = compare({record_steps::recorded(project), {}, record_steps::unrecorded(project)}, rounds, 1);
    return {"delete its members while it is recorded", costs[0], {}, costs[2], {.atMostOfLimit = 1.1}};
}

Row undoDeletion(const Project& project, int rounds) {
    const auto costs = compare({record_steps::undo(project), {}, record_steps::insert(project)}, rounds, 1);
    return {"undo that", costs[0], {}, costs[2], {.atMostOfLimit = 1.5}};
}

Row openVariables(const Project& project, int rounds) {
    const Project large = plant(project);
    const auto costs = compare({choose_variables::open(large)}, rounds, fewRuns);
    return {"open the dialog for " + std::to_string(large.big) + " variables",
            costs[0],
            {},
            {},
            {.atMostMilliseconds = 200.0, .worstCounts = true}};
}

Row filterVariables(const Project& project, int rounds) {
    const auto costs = compare({choose_variables::filter(plant(project))}, rounds, manyRuns);
    return {"type another filter there", costs[0], {}, {}, {.atMostMilliseconds = 100.0, .worstCounts = true}};
}

Row sortMembers(const Project& project, int rounds) {
    namespace subject = sort_members;
    const auto costs = compare({subject::ours(project), {}, subject::limit(project)}, rounds, fewRuns);
    return {"sort the big recipe by its variables", costs[0], {}, costs[2], {.atMostOfLimit = 1.5}};
}

Row timeRow(const std::string& name, const Subject& subject, int rounds, double milliseconds) {
    return {name, compare({subject}, rounds, fewRuns)[0], {}, {}, {.atMostMilliseconds = milliseconds}};
}

Row deleteMember(const Project& project, int rounds) {
    return timeRow("delete one of its variables", delete_member::ours(project, false), rounds, 50);
}

Row deleteSortedMember(const Project& project, int rounds) {
    return timeRow("delete one of them, sorted", delete_member::ours(project, true), rounds, 50);
}

Row selectAll(const Project& project, int rounds) {
    return timeRow("select all of them", select_all::ours(project), rounds, 100);
}

Row refreshView(const Project& project, int rounds) {
    return timeRow("refresh the view of all recipes, in the studio", refresh_view::ours(project), rounds, 200);
}

Row openMany(const Project& project, int rounds) {
    return timeRow("open the choice of them, all checked", choose_many::open(project), rounds, 1000);
}

Row searchMany(const Project& project, int rounds) {
    return timeRow("search in it", choose_many::search(project), rounds, 150);
}

Row cancelMany(const Project& project, int rounds) {
    return timeRow("cancel it", choose_many::cancel(project), rounds, 200);
}

Row checkAllVariables(const Project& project, int rounds) {
    const auto costs = compare({choose_variables::checkAll(plant(project))}, rounds, fewRuns);
    return {"check or uncheck all variables there", costs[0], {}, {}, {}};
}

Row reportRow(const std::string& name, const Subject& subject, int rounds, int runs, Goal goal) {
    return {name, compare({subject}, rounds, runs)[0], {}, {}, goal};
}

Row readForReport(const Project& project, int rounds) {
    return reportRow("report on 1,000 recipes, 20,000 members: read",
                     make_report::readProject(make_report::plant(project)), rounds, fewRuns, {});
}

Row showReport(const Project& project, int rounds) {
    return reportRow("read it, show the first page", make_report::show(make_report::plant(project)), rounds, fewRuns,
                     {.atMostMilliseconds = 500.0});
}

Row scrollReport(const Project& project, int rounds) {
    return reportRow("show any page of it", make_report::scroll(make_report::plant(project)), rounds, manyRuns,
                     {.atMostMilliseconds = 20.0});
}

Row reportAsHtml(const Project& project, int rounds) {
    return reportRow("write it as HTML", make_report::html(make_report::plant(project)), rounds, fewRuns, {});
}

Row reportAsPdf(const Project& project, int rounds) {
    return reportRow("lay it out and write it as PDF", make_report::pdf(make_report::plant(project)), rounds, fewRuns,
                     {});
}

Row showLargeReport(const Project& project, int rounds) {
    return reportRow("the same on the large project: show the first page", make_report::show(project.path), rounds, 1,
                     {.atMostMilliseconds = 1000.0, .atMostMegabytes = 150.0});
}

Row layOutReport(const Project& project, int rounds) {
    return reportRow("lay out the other pages of it", make_report::layOut(project.path), std::min(rounds, 2), 1, {});
}

Row checkProject(const Project& project, int rounds) {
    namespace subject = check_project;
    constexpr std::int64_t membersEach = 10;
    const Project large = subject::plant(project);
    const auto costs = compare({subject::ours(large), subject::peer(large), subject::limit(large)}, rounds, 1);
    return {"check a project of " + std::to_string(large.recipes * membersEach) + " members",
            costs[0],
            costs[1],
            costs[2],
            {.atMostMilliseconds = 1000.0, .worstCounts = true}};
}

Row findText(const Project& project, int rounds) {
    namespace subject = find_text;
    constexpr std::int64_t membersEach = 9;
    const auto costs =
        compare({subject::ours(project, "temperatur.soll"), {}, subject::limit(project)}, rounds, fewRuns);
    return {"find a text in " + std::to_string(project.big + project.recipes * membersEach) + " members",
            costs[0],
            {},
            costs[2],
            {.atMostMilliseconds = 1000.0}};
}

Row findLastByNumber(const Project& project, int rounds) {
    return findRecipe(project, rounds, "open the recipes and find the last by number",
                      "ID=" + std::to_string(project.recipes + 1));
}

Row findLastByName(const Project& project, int rounds) {
    return findRecipe(project, rounds, "open the recipes and find the last by name",
                      "Name='" + project::recipeName(project.recipes - 1) + "'");
}

Row selectInJet(const Project& project, int rounds) {
    namespace subject = select_recipe;
    const auto costs = compare(
        {subject::ours(jet_project::of(project), bigRecipe), {}, subject::limit(project, bigRecipe)}, rounds, fewRuns);
    return {"the same project in Jet: select the big recipe",
            costs[0],
            {},
            costs[2],
            {.atMostOfLimit = 2.0, .atMostMegabytes = 12.0}};
}

Row showFirstPageOfJet(const Project& project, int rounds) {
    const auto costs = compare({show_grid::firstPage(jet_project::of(project))}, rounds, manyRuns);
    return {"show its first page", costs[0], {}, {}, {.atMostMilliseconds = 5.0}};
}

Row fillExplorerFromJet(const Project& project, int rounds) {
    const auto costs =
        compare({fill_explorer::ours(jet_project::of(project)), {}, fill_explorer::ours(project)}, rounds, 1);
    return {"add its recipes to the explorer; limit: SQLite's", costs[0], {}, costs[2], {.atMostOfLimit = 1.5}};
}

Row readJet(const Project& project, int rounds) {
    const Project jet = jet_project::of(project);
    const auto costs = compare({jet_project::readMembers(jet), jet_project::readMembersByPeer(jet)}, rounds, fewRuns);
    return {"read its members; peer: mdbtools", costs[0], costs[1], {}, {.atLeastPeer = 2.0}};
}

Row replaceVariablesInJet(const Project& project, int rounds) {
    namespace subject = replace_variables;
    const Project large = plant(project);
    const auto costs = compare({subject::ours(jet_project::of(large)), {}, subject::limit(large)}, rounds, fewRuns);
    return {
        "replace " + std::to_string(large.big) + " variables in Jet", costs[0], {}, costs[2], {.atMostOfLimit = 3.0}};
}

constexpr auto table = std::to_array<Measurement>({
    {"select-big", &selectBig},
    {"first-page", &showFirstPage},
    {"scroll", &showAnyPage},
    {"read-page", &readPage},
    {"select-small", &selectSmall},
    {"explorer", &fillExplorer},
    {"filter-explorer", &filterExplorer},
    {"filter-ordered", &filterOrdered},
    {"read-recipes", &readRecipes},
    {"find-number", &findLastByNumber},
    {"find-name", &findLastByName},
    {"statistic", &countAll},
    {"sort", &sortMembers},
    {"delete-member", &deleteMember},
    {"delete-sorted", &deleteSortedMember},
    {"select-all", &selectAll},
    {"refresh-view", &refreshView},
    {"open-many", &openMany},
    {"search-many", &searchMany},
    {"cancel-many", &cancelMany},
    {"replace-variables", &replaceVariables},
    {"delete-recipe", &deleteRecipe},
    {"record", &recordDeletion},
    {"undo", &undoDeletion},
    {"open-variables", &openVariables},
    {"filter-variables", &filterVariables},
    {"check-variables", &checkAllVariables},
    {"check", &checkProject},
    {"find-text", &findText},
    {"jet-select", &selectInJet},
    {"jet-first-page", &showFirstPageOfJet},
    {"jet-explorer", &fillExplorerFromJet},
    {"jet-read", &readJet},
    {"jet-replace", &replaceVariablesInJet},
    {"report-read", &readForReport},
    {"report", &showReport},
    {"report-scroll", &scrollReport},
    {"report-html", &reportAsHtml},
    {"report-pdf", &reportAsPdf},
    {"report-large", &showLargeReport},
    {"report-pages", &layOutReport},
});

}  // namespace

std::span<const Measurement> measurements() { return table; }

}  // namespace hx::bench
