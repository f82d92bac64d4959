#include "cli/variables.h"

#include "cli/in_file.h"
#include "cli/json_output.h"
#include "cli/text_decoder.h"
#include "cli/variables_import.h"

namespace hx::cli {

namespace {

void list(const std::string& path, bool json, const Output& output) {
    ProjectReader project(path);
    sqlite::Statement select(project.database(), "SELECT Name, Type, Comment FROM ThxVariable ORDER BY Name");
    const char* separator = "\n";
    if (json) output.results << "{\"variables\": [";
    while (select.step()) {
        if (json) {
            const Json object = {{"name", select.text(0)}, {"type", select.text(1)}, {"comment", select.text(2)}};
            output.results << separator << jsonLine(object);
            separator = ",\n";
        } else {
            output.results << inQuotes(select.text(0)) << " " << visible(select.text(1)) << "\n";
        }
    }
    if (json) output.results << "\n]}\n";
}

void addList(CLI::App& group, Command& chosen, const Output& output) {
    CLI::App* command = group.add_subcommand("list", "List the variables of a project.");
    struct Arguments {
        std::string path;
        bool json = false;
    };
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("FILE", arguments->path, "The project file; it is only read.")->required();
    command->add_flag("--json", arguments->json, "Print JSON, for other programs.");
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing(
            [arguments, &output] { inFile(arguments->path, [&] { list(arguments->path, arguments->json, output); }); });
    });
}

void addImport(CLI::App& group, Command& chosen, const Output& output) {
    CLI::App* command = group.add_subcommand("import", "Bring the variables of a list into a project.");
    const auto plan = std::make_shared<VariablesImport>();
    command->add_option("FILE", plan->project, "The project file.")->required();
    command
        ->add_option("LIST", plan->list,
                     "CSV with name, type and comment, or a PLCopen project (XML of TC6 or IEC 61131-10).")
        ->required();
    command->add_flag("--dry-run", plan->dryRun, "Print what would change, and change nothing.");
    command->add_flag("--json", plan->json, "Print JSON, for other programs.");
    command
        ->add_option("--encoding", plan->encoding,
                     "The encoding of CSV without a byte order mark, as WINDOWS-1250; UTF-8 and Windows-1252 are "
                     "recognised.")
        ->type_name("NAME")
        ->check([](const std::string& name) {
            return isKnownEncoding(name) ? std::string() : "\"" + name + "\" is not a known encoding";
        });
    command->callback(
        [plan, &chosen, &output] { chosen = Command::doing([plan, &output] { importVariables(*plan, output); }); });
}

}  // namespace

void addVariables(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* group = app.add_subcommand("variables", "Work on the variable list of a project.");
    group->require_subcommand(1);
    addList(*group, chosen, output);
    addImport(*group, chosen, output);
}

}  // namespace hx::cli
