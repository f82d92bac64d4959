// SPDX-License-Identifier: MIT
#include "cli/verbs.h"

#include <optional>

#include "adapters/sqlite/provider.h"
#include "adapters/sqlite/session.h"
#include "cli/differences_output.h"
#include "cli/export.h"
#include "cli/findings.h"
#include "cli/list.h"
#include "cli/progress.h"
#include "cli/show.h"
#include "cli/variables.h"
#include "cli/where.h"
#include "exchange/content_file.h"
#include "exchange/import.h"
#include "hosting/in_file.h"

namespace hx::cli {

namespace {

/// What the commands that read one project are given.
struct Arguments {
    std::string path;
    std::string subject;
    bool json = false;
};

std::shared_ptr<Arguments> readingArguments(CLI::App& command) {
    auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->path, "The project file; it is only read.")->required();
    command.add_flag("--json", arguments->json, "Print JSON, for other programs.");
    return arguments;
}

void addList(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("list", "List the recipes of a project.");
    const auto arguments = readingArguments(*command);
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] {
            hosting::inFile(arguments->path, [&] { list(arguments->path, arguments->json, output); });
        });
    });
}

void addShow(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command =
        app.add_subcommand("show", "Show a recipe: properties, variables, tree of sub-recipes, where it is used.");
    const auto arguments = readingArguments(*command);
    command->add_option("RECIPE", arguments->subject, "The recipe's name in any case, or its ID.")->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] {
            hosting::inFile(arguments->path,
                            [&] { show(arguments->path, arguments->subject, arguments->json, output); });
        });
    });
}

void addCheck(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("check", "Look for what is wrong in a project.");
    const auto options = std::make_shared<CheckOptions>();
    command->add_option("FILE", options->path, "The project file; it is only read.")->required();
    command->add_flag("--json", options->json, "Print JSON, for other programs.");
    command->add_flag("--thorough", options->thorough,
                      "In a file of more than 32 MB too, compare each index with its table.");
    command->footer("Exit status: 0 nothing found, 1 findings, 2 the project could not be checked.");
    command->callback([options, &chosen, &output] {
        chosen = Command::asking(
            [options, &output] { return hosting::inFile(options->path, [&] { return check(*options, output); }); });
    });
}

void addWhere(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command =
        app.add_subcommand("where", "Show what refers to a variable or a recipe, directly and through sub-recipes.");
    const auto arguments = readingArguments(*command);
    command->add_option("NAME", arguments->subject, "A variable's name, or a recipe's name or ID.")->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] {
            hosting::inFile(arguments->path,
                            [&] { where(arguments->path, arguments->subject, arguments->json, output); });
        });
    });
}

void addExport(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("export", "Write all recipes and members of a project as reviewable text.");
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("FILE", arguments->path, "The project file; it is only read.")->required();
    command->add_option("OUT.json", arguments->subject, "The file to write; only another export is replaced.")
        ->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] { exportProject(arguments->path, arguments->subject, output); });
    });
}

struct ImportArguments {
    std::string project, file, mode = "add";
    bool dryRun = false, json = false;
};

void import(const ImportArguments& arguments, const Output& output) {
    using exchange::ImportMode;
    const ImportMode mode = arguments.mode == "add"      ? ImportMode::add
                            : arguments.mode == "update" ? ImportMode::update
                                                         : ImportMode::replace;
    std::optional<Progress> progress(std::in_place, output);
    // Names are compared with those of the project before anything is written.
    const auto session = std::make_shared<sqlite::Session>(
        arguments.project, false,
        sqlite::OpenOptions{.comparesNames = false, .keepsChangesInMemory = arguments.dryRun});
    if (arguments.dryRun) {
        const auto differences =
            exchange::previewImport(session, arguments.project, arguments.file, mode, progress->hearer());
        progress.reset();
        return print(differences, arguments.json, output);
    }
    const auto counts = exchange::importContent(session, arguments.project, arguments.file, mode, progress->hearer());
    progress.reset();
    output.results << "Imported " << arguments.file << ": " << counts.added << " recipes added, " << counts.changed
                   << " changed, " << counts.removed << " removed.\n";
}

void addImport(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("import", "Bring the recipes of an export into a project.");
    const auto arguments = std::make_shared<ImportArguments>();
    command->add_option("FILE", arguments->project, "The project file.")->required();
    command->add_option("IN.json", arguments->file, "The export.")->required();
    CLI::Option* dryRun =
        command->add_flag("--dry-run", arguments->dryRun, "Print what would change, and change nothing.");
    command->add_flag("--json", arguments->json, "Print what would change as JSON, for other programs.")->needs(dryRun);
    command
        ->add_option("--mode", arguments->mode,
                     "add: recipes that the project lacks (default); update: also change those that it has; replace: "
                     "also delete all others.")
        ->check(CLI::IsMember({"add", "update", "replace"}));
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] { import(*arguments, output); });
    });
}

void addDiff(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("diff", "Show what differs between two projects or exports.");
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("A", arguments->path, "A project file or an export.")->required();
    command->add_option("B", arguments->subject, "A project file or an export.")->required();
    command->add_flag("--json", arguments->json, "Print JSON, for other programs.");
    command->footer("Exit status: 0 no differences, 1 differences, 2 the files could not be compared.");
    command->callback([arguments, &chosen, &output] {
        chosen = Command::asking([arguments, &output] {
            sqlite::Provider provider;
            std::optional<Progress> progress(std::in_place, output);
            const auto load = [&](const std::string& path) {
                return exchange::loadContent(provider, path, progress->hearer());
            };
            const auto differences = exchange::compare(load(arguments->path), load(arguments->subject), {});
            progress.reset();
            print(differences, arguments->json, output);
            return static_cast<int>(differences.empty() ? succeeded : found);
        });
    });
}

}  // namespace

void addVerbs(CLI::App& app, Command& chosen, const Output& output) {
    addList(app, chosen, output);
    addShow(app, chosen, output);
    addCheck(app, chosen, output);
    addWhere(app, chosen, output);
    addExport(app, chosen, output);
    addImport(app, chosen, output);
    addDiff(app, chosen, output);
    addVariables(app, chosen, output);
}

}  // namespace hx::cli
