// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "bench/growth.h"
#include "bench/measurements.h"
#include "bench/project_folder.h"

namespace hx::bench {

namespace {

struct Options {
    std::string folder;  ///< for the generated projects; empty for a temporary one
    int rounds = 5;
    std::int64_t scale = 1;  ///< sizes are divided by it
    bool growth = true;
    std::vector<std::string> only;  ///< keys of the measurements; empty for all
};

constexpr std::int64_t manyRecipes = 100'000;
constexpr std::int64_t bigMembers = 1'000'000;

std::vector<std::string> keys() {
    std::vector<std::string> keys;
    for (const Measurement& measurement : measurements()) keys.emplace_back(measurement.key);
    return keys;
}

std::vector<Row> measureAll(const Project& project, const Options& options) {
    std::vector<Row> rows;
    for (const Measurement& measurement : measurements()) {
        const bool wanted = options.only.empty() || std::ranges::count(options.only, measurement.key) > 0;
        if (wanted) rows.push_back(measurement.run(project, options.rounds));
    }
    return rows;
}

void run(const Options& options, const std::string& folder) {
    const Project project = makeProject(folder, manyRecipes / options.scale, bigMembers / options.scale);
    std::cout
        << "\nA project of " << project.recipes << " recipes with 9 members each and one recipe of " << project.big
        << " members.\nMedians of all runs; peer: QSqlTableModel with all rows fetched, QTreeWidget for the explorer, "
           "queries for the check;\nlimit: SQLite's C API. Memory: what the first run added, at its peak.\n\n";
    print(std::cout, measureAll(project, options));
    if (options.growth) printGrowth(std::cout, folder, project.recipes, project.big);
}

}  // namespace

static int runFor(int argc, char** argv) {
    Options options;
    CLI::App app("Measures the editor on a large project, beside Qt's own models and SQLite alone.", "hx_bench");
    app.add_option("--folder", options.folder, "Keep the generated projects here and use them again.");
    app.add_option("--rounds", options.rounds, "How often everything is measured.")->check(CLI::Range(1, 100));
    app.add_option("--scale", options.scale, "Divide the sizes by this, for a quick look.")->check(CLI::Range(1, 1000));
    app.add_option("--only", options.only, "Only these measurements.")->check(CLI::IsMember(keys()));
    app.add_flag("!--no-growth", options.growth, "Leave the tables of growth out.");
    CLI11_PARSE(app, argc, argv);
    try {
        const ProjectFolder folder(options.folder);
        run(options, folder.path());
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "hx_bench: " << error.what() << "\n";
        return 1;
    }
}

}  // namespace hx::bench

int main(int argc, char** argv) { return hx::bench::runFor(argc, argv); }
