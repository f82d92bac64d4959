#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>

#include "bench/report.h"
#include "bench/subjects.h"
#include "cli/generated_names.h"

namespace hx::bench {

namespace {

struct Options {
    std::string folder;  ///< for the generated projects; empty for a temporary one
    int rounds = 5;
    std::int64_t scale = 1;  ///< sizes are divided by it
    bool growth = true;
    std::vector<std::string> only;  ///< keys of the measurements; empty for all
};

constexpr std::int64_t recipes = 100'000;
constexpr std::int64_t bigMembers = 1'000'000;
constexpr int fewRuns = 3;
constexpr int manyRuns = 200;

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
    return reportRow("read it, lay it out, show the first page", make_report::show(make_report::plant(project)), rounds,
                     fewRuns, {.atMostMilliseconds = 500.0});
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
    return reportRow("the same on the large project: show the first page", make_report::show(project.path),
                     std::min(rounds, 2), 1, {});
}

Row findLastByNumber(const Project& project, int rounds) {
    return findRecipe(project, rounds, "open the recipes and find the last by number",
                      "ID=" + std::to_string(project.recipes + 1));
}

Row findLastByName(const Project& project, int rounds) {
    return findRecipe(project, rounds, "open the recipes and find the last by name",
                      "Name='" + cli::recipeName(project.recipes - 1) + "'");
}

struct Measurement {
    std::string_view key;
    Row (*run)(const Project& project, int rounds);
};

constexpr auto measurements = std::to_array<Measurement>({
    {"select-big", &selectBig},
    {"first-page", &showFirstPage},
    {"scroll", &showAnyPage},
    {"read-page", &readPage},
    {"select-small", &selectSmall},
    {"explorer", &fillExplorer},
    {"read-recipes", &readRecipes},
    {"find-number", &findLastByNumber},
    {"find-name", &findLastByName},
    {"statistic", &countAll},
    {"replace-variables", &replaceVariables},
    {"delete-recipe", &deleteRecipe},
    {"open-variables", &openVariables},
    {"filter-variables", &filterVariables},
    {"check-variables", &checkAllVariables},
    {"report-read", &readForReport},
    {"report", &showReport},
    {"report-scroll", &scrollReport},
    {"report-html", &reportAsHtml},
    {"report-pdf", &reportAsPdf},
    {"report-large", &showLargeReport},
});

std::vector<Row> measureAll(const Project& project, const Options& options) {
    std::vector<Row> rows;
    for (const Measurement& measurement : measurements) {
        const bool wanted = options.only.empty() || std::ranges::count(options.only, measurement.key) > 0;
        if (wanted) rows.push_back(measurement.run(project, options.rounds));
    }
    return rows;
}

void printGrowth(const Options& options) {
    std::vector<GrowthLine> byRecipes;
    std::vector<GrowthLine> byMembers;
    for (std::int64_t size = 10; size <= bigMembers / options.scale; size *= 10) {
        const Project project = makeProject(options.folder, std::min(size, recipes / options.scale), size);
        const int runs = size < recipes ? manyRuns / 10 : fewRuns;
        const auto cost = [&](const Subject& subject) { return compare({subject}, 1, runs)[0]; };
        // An explorer takes the nodes only once.
        const auto costOnce = [&](const Subject& subject) { return compare({subject}, fewRuns, 1)[0]; };
        if (size <= recipes / options.scale) {
            byRecipes.push_back({std::to_string(size),
                                 {cost(read_recipes::ours(project)), costOnce(fill_explorer::ours(project)),
                                  cost(find_recipe::ours(project, "ID=" + std::to_string(size))),
                                  cost(select_recipe::ours(project, smallRecipe))}});
        }
        byMembers.push_back(
            {std::to_string(size),
             {cost(select_recipe::ours(project, bigRecipe)), cost(select_recipe::peer(project, bigRecipe)),
              cost(select_recipe::limit(project, bigRecipe)), cost(show_grid::anyPage(project))}});
    }
    print(std::cout, "Growth with the number of recipes (9 members each): time and memory",
          {"read all", "fill the explorer", "find by number", "select one of them"}, byRecipes);
    print(std::cout, "Growth with the number of members of one recipe: time and memory",
          {"select it", "peer", "limit", "scroll to any page"}, byMembers);
}

void run(const Options& options) {
    const Project project = makeProject(options.folder, recipes / options.scale, bigMembers / options.scale);
    std::cout
        << "\nA project of " << project.recipes << " recipes with 9 members each and one recipe of " << project.big
        << " members.\nMedians of all runs; peer: QSqlTableModel with all rows fetched, QTreeWidget for the explorer; "
           "limit: SQLite's C API.\nMemory: what the first run added, at its peak.\n\n";
    print(std::cout, measureAll(project, options));
    if (options.growth) printGrowth(options);
}

/// A folder for the projects, removed at the end when it is a temporary one.
class ProjectFolder {
  public:
    explicit ProjectFolder(Options& options) : temporary_(options.folder.empty()) {
        if (temporary_) {
            std::string path = (std::filesystem::temp_directory_path() / "hx-bench-XXXXXX").string();
            if (mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder");
            options.folder = path;
        }
        path_ = options.folder;
        std::filesystem::create_directories(path_);
    }
    ~ProjectFolder() {
        std::error_code ignored;
        if (temporary_) std::filesystem::remove_all(path_, ignored);
    }
    ProjectFolder(const ProjectFolder&) = delete;
    ProjectFolder& operator=(const ProjectFolder&) = delete;

  private:
    bool temporary_;
    std::string path_;
};

}  // namespace

}  // namespace hx::bench

int main(int argc, char** argv) {
    using namespace hx::bench;
    Options options;
    CLI::App app("Measures the editor on a large project, beside Qt's own models and SQLite alone.", "hx_bench");
    app.add_option("--folder", options.folder, "Keep the generated projects here and use them again.");
    app.add_option("--rounds", options.rounds, "How often everything is measured.")->check(CLI::Range(1, 100));
    app.add_option("--scale", options.scale, "Divide the sizes by this, for a quick look.")->check(CLI::Range(1, 1000));
    app.add_option("--only", options.only, "Only these measurements: select-big, first-page, scroll, ...");
    app.add_flag("!--no-growth", options.growth, "Leave the tables of growth out.");
    CLI11_PARSE(app, argc, argv);
    try {
        const ProjectFolder folder(options);
        run(options);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "hx_bench: " << error.what() << "\n";
        return 1;
    }
}
