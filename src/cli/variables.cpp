// SPDX-License-Identifier: MIT
#include "cli/variables.h"

#include <algorithm>
#include <array>

#include "adapters/sqlite/provider.h"
#include "automation/text.h"
#include "cli/json_output.h"
#include "cli/variables_import.h"
#include "hosting/in_file.h"
#include "lists/text_decoder.h"
#include "project/schema.h"

namespace hx::cli {

namespace {

void listVariables(const std::string& path, bool json, const Output& output) {
    struct Variable {
        std::string name, type, comment;
    };
    using namespace project::schema;
    sqlite::Provider provider;
    project::Reader reader(provider, path);
    std::vector<Variable> variables;
    reader.read(variableTable, std::array{variable::name, variable::type, variable::comment}, [&](const auto& row) {
        variables.push_back({std::string(row[0].text), std::string(row[1].text), std::string(row[2].text)});
    });
    std::ranges::stable_sort(variables, [](const Variable& a, const Variable& b) {
        return automation::compareIgnoreCase(a.name, b.name) < 0;
    });
    const char* separator = "\n";
    if (json) output.results << "{\"variables\": [";
    for (const Variable& variable : variables) {
        if (json) {
            const Json object = {{"name", variable.name}, {"type", variable.type}, {"comment", variable.comment}};
            output.results << separator << jsonLine(object);
            separator = ",\n";
        } else {
            output.results << inQuotes(variable.name) << " " << visible(variable.type) << "\n";
        }
    }
    if (json) output.results << "\n]}\n";
}

void addVariableList(CLI::App& group, Command& chosen, const Output& output) {
    CLI::App* command = group.add_subcommand("list", "List the variables of a project.");
    struct Arguments {
        std::string path;
        bool json = false;
    };
    const auto arguments = std::make_shared<Arguments>();
    command->add_option("FILE", arguments->path, "The project file; it is only read.")->required();
    command->add_flag("--json", arguments->json, "Print JSON, for other programs.");
    command->callback([arguments, &chosen, &output] {
        chosen = Command::doing([arguments, &output] {
            hosting::inFile(arguments->path, [&] { listVariables(arguments->path, arguments->json, output); });
        });
    });
}

void addVariableImport(CLI::App& group, Command& chosen, const Output& output) {
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
            return lists::isKnownEncoding(name) ? std::string() : "\"" + name + "\" is not a known encoding";
        });
    command->callback(
        [plan, &chosen, &output] { chosen = Command::doing([plan, &output] { importVariables(*plan, output); }); });
}

}  // namespace

void addVariables(CLI::App& app, Command& chosen, const Output& output) {
    CLI::App* group = app.add_subcommand("variables", "Work on the variable list of a project.");
    group->require_subcommand(1);
    addVariableList(*group, chosen, output);
    addVariableImport(*group, chosen, output);
}

}  // namespace hx::cli
