#include "cli/verbs.h"

#include "cli/check.h"
#include "cli/list.h"
#include "cli/show.h"
#include "cli/where.h"

namespace hx::cli {

namespace {

/// What the commands that read one project are given.
struct Arguments {
    std::string path;
    std::string subject;
    bool json = false;
};

std::shared_ptr<Arguments> readingArguments(CLI::App& command) {
    const auto arguments = std::make_shared<Arguments>();
    command.add_option("FILE", arguments->path, "The project file; it is only read.")->required();
    command.add_flag("--json", arguments->json, "Print JSON, for other programs.");
    return arguments;
}

void addList(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("list", "List the recipes of a project.");
    const auto arguments = readingArguments(*command);
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] { list(arguments->path, arguments->json, output); });
    });
}

void addShow(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command =
        app.add_subcommand("show", "Show a recipe: properties, variables, tree of sub-recipes, where it is used.");
    const auto arguments = readingArguments(*command);
    command->add_option("RECIPE", arguments->subject, "The recipe's name in any case, or its ID.")->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing(
            [arguments, &output] { show(arguments->path, arguments->subject, arguments->json, output); });
    });
}

void addCheck(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command = app.add_subcommand("check", "Look for what is wrong in a project.");
    const auto arguments = readingArguments(*command);
    command->footer("Exit status: 0 nothing found, 1 findings, 2 the project could not be checked.");
    command->callback([arguments, &chosen, &output] {
        chosen = Command::asking([arguments, &output] { return check(arguments->path, arguments->json, output); });
    });
}

void addWhere(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* command =
        app.add_subcommand("where", "Show what refers to a variable or a recipe, directly and through sub-recipes.");
    const auto arguments = readingArguments(*command);
    command->add_option("NAME", arguments->subject, "A variable's name, or a recipe's name or ID.")->required();
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing(
            [arguments, &output] { where(arguments->path, arguments->subject, arguments->json, output); });
    });
}

}  // namespace

void addVerbs(CLI::App& app, Command& chosen, const Output& output) {
    addList(app, chosen, output);
    addShow(app, chosen, output);
    addCheck(app, chosen, output);
    addWhere(app, chosen, output);
}

}  // namespace hx::cli
