// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "adapters/sqlite/project_file.h"
#include "automation/cancelled.h"
#include "automation/error.h"
#include "cli/application.h"
#include "cli/convert.h"
#include "cli/generate.h"
#include "cli/help_formatter.h"
#include "cli/run_macro.h"
#include "cli/verbs.h"
#include "hosting/visible.h"

namespace hx::cli {

namespace {

constexpr std::int64_t most = 100'000'000;  // rows of one kind

void addNew(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("new", "Make an empty project.");
    const auto path = std::make_shared<std::string>();
    const auto format = std::make_shared<std::string>("sqlite");
    command->add_option("--format", *format, "What it is kept in: sqlite, or jet as the studio on Windows does.")
        ->check(CLI::IsMember({"sqlite", "jet"}))
        ->type_name("FORMAT");
    command->add_option("FILE", *path, "The project file to make; it must not exist yet.")->required();
    command->callback([path, format, &chosen, &output] {
        chosen = Command::doing([path, format, &output] {
            const bool jet = *format == "jet";
            sqlite::createProject(*path, jet ? sqlite::ProjectFormat::jet : sqlite::ProjectFormat::sqlite);
            output.results << "Made " << *path << ".\n";
        });
    });
}

void addConvert(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("convert", "Copy a project into a new one of the other format.");
    struct Arguments {
        std::string from, to;
    };
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("A", arguments->from, "The project file, SQLite or Jet; it is only read.")->required();
    command->add_option("B", arguments->to, "The project file to make; it must not exist yet.")->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] { convertProject(arguments->from, arguments->to, output); });
    });
}

void addGenerate(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("generate", "Make a project of any size, to try and to measure with.");
    struct Arguments {
        project::GeneratorPlan plan;
        std::string path;
    };
    const auto arguments = std::make_shared<Arguments>();
    const auto count = [&](const char* option, std::int64_t& target, const char* help) {
        command->add_option(option, target, help)->required()->type_name("N")->check(CLI::Range(std::int64_t{0}, most));
    };
    count("--recipes", arguments->plan.recipes, "How many recipes.");
    count("--members", arguments->plan.members, "How many variables, spread evenly over them.");
    count("--big", arguments->plan.bigMembers,
          "How many variables one further recipe has; with 0 there is no such recipe.");
    command->add_option("FILE", arguments->path, "The project file to make; it must not exist yet.")->required();
    command->callback([arguments, &chosen, &output] {
        const auto& plan = arguments->plan;
        if (plan.recipes == 0 && plan.members > 0) throw CLI::ValidationError("--members needs recipes to spread over");
        chosen = Command::doing([arguments, &output] { generate(arguments->plan, arguments->path, output); });
    });
}

// For a catch handler.
void explain(const Output& output) {
    output.problems << "hxrecipe: " << hosting::visibleLines(automation::caughtError().description()) << "\n";
}

int carryOut(const Command& command, const Output& output) {
    try {
        const int status = command.run();
        output.results.flush();
        if (output.results.fail()) throw automation::Error(automation::errFail, "The results cannot be written.");
        return status;
    } catch (const automation::Cancelled&) {
        output.problems << "hxrecipe: Cancelled.\n";
        return cancelled;
    } catch (const std::exception&) {
        explain(output);
        return command.onFailure;
    }
}

// The word that should be a command and is none: the library only says that a command is missing.
std::string unknownCommand(const CLI::App& app) {
    const CLI::App* last = &app;
    while (!last->get_subcommands().empty()) last = last->get_subcommands().front();
    const auto rest = app.remaining(true);
    const bool isMissing = last->get_require_subcommand_min() > 0 && !rest.empty();
    return isMissing && !rest.front().starts_with('-') ? rest.front() : std::string();
}

int explainUsage(const CLI::App& app, const CLI::ParseError& error, const Output& output) {
    const std::string unknown = unknownCommand(app);
    if (error.get_exit_code() == 0 || unknown.empty()) {
        return app.exit(error, output.results, output.problems) == 0 ? succeeded : wrongUsage;
    }
    output.problems << "There is no command " << hosting::inQuotes(unknown)
                    << ".\nRun with --help for more information.\n";
    return wrongUsage;
}

}  // namespace

std::unique_ptr<CLI::App> makeApplication(Command& chosen, const Output& output) {
    auto app = std::make_unique<CLI::App>("Makes, shows and checks project files of the recipe editor.", "hxrecipe");
    app->formatter(std::make_shared<HelpFormatter>());
    app->allow_windows_style_options(false);  // what begins with "/" is a path, on every system
    app->require_subcommand(1);
    app->set_help_flag("-h,--help", "Print this help and exit.");
    app->set_version_flag("--version", "hxrecipe " HX_VERSION, "Print the version and exit.");
    app->footer("Exit status: 0 done, 1 failed, 2 wrong usage.");  // of every command that has none of its own
    addNew(*app, chosen, output);
    addConvert(*app, chosen, output);
    addGenerate(*app, chosen, output);
    addVerbs(*app, chosen, output);
    addRunMacro(*app, chosen, output);
    app->footer(
        "Exit status: 0 done, 1 failed, 2 wrong usage; of check and diff: 0 nothing found, 1 findings or "
        "differences, 2 could not tell.");
    return app;
}

int run(int argc, const char* const* argv, const Output& output) {
    try {
        Command chosen;
        const auto app = makeApplication(chosen, output);
        try {
            app->parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return explainUsage(*app, error, output);
        }
        return carryOut(chosen, output);
    } catch (const std::exception&) {  // before it is known what to do
        explain(output);
        return wrongUsage;
    }
}

}  // namespace hx::cli
