// SPDX-License-Identifier: MIT
#include "torture/operation.h"

#include "torture/programs.h"

namespace hx::torture {

namespace {

using Command = Process::Command;

const std::string work = std::string(programs::files) + "/work.lua";

Command hxrecipe(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), programs::hxrecipe);
    return arguments;
}

std::string file(const std::string& name) { return programs::files + ("/" + name); }

// A project of three recipes, settings of the editor's window and a registry.
std::vector<Command> plant() {
    return {hxrecipe({"new", "~/plant.hxs"}), hxrecipe({"variables", "import", "~/plant.hxs", file("variables.csv")}),
            hxrecipe({"import", "~/plant.hxs", file("plant.json")}),
            hxrecipe({"run", "--config", "~/config", "--project", "~/plant.hxs", work, "settings"})};
}

Command macro(const std::string& name) {
    return hxrecipe({"run", "--trust", "--config", "~/config", "--project", "~/plant.hxs", work, name});
}

Operation commandLine(const std::string& name, std::vector<std::string> arguments) {
    const Command command = hxrecipe(std::move(arguments));
    return {.name = name, .before = plant(), .command = command, .next = {command}};
}

// Over an older one.
Operation exporting() {
    Operation operation = commandLine("export", {"export", "~/plant.hxs", "~/plant.json"});
    operation.before.push_back({"/bin/cp", file("more.json"), "~/plant.json"});
    return operation;
}

Operation making(const std::string& name, std::vector<std::string> arguments) {
    Operation operation = commandLine(name, std::move(arguments));
    operation.before.clear();
    operation.once = true;
    return operation;
}

// A deletion that fails leaves deleted what it has deleted until then.
constexpr const char* onlyTheRecipe = "DELETE FROM TrcpRecipe WHERE Name = 'Rinse'";
constexpr const char* onlyTheFirstMember = "DELETE FROM TrcpRecipeMember WHERE VarRecipe = 'Mixer.Speed'";

Operation macroWork(const std::string& name, int steps, const std::string& partly = {}) {
    return {.name = "macro " + name,
            .before = plant(),
            .command = macro(name),
            .steps = steps,
            .counted = true,
            .partly = partly,
            .next = {macro("next")}};
}

// The driver in the studio does the steps; each is one of the macros in the user's folder.
Operation studioWork(const std::string& name, const std::string& steps) {
    std::vector<Command> before = plant();
    for (const char* each : {"edit", "report"}) {
        before.push_back(
            {"/bin/cp", file("studio_" + std::string(each) + ".lua"), "~/config/macros/" + std::string(each) + ".lua"});
    }
    before.insert(before.end() - 2, {"/bin/mkdir", "-p", "~/config/macros"});
    const Command command{programs::studio, "--config", "~/config", "~/plant.hxs"};
    return {.name = "studio " + name,
            .before = before,
            .command = command,
            .next = {command, macro("next")},
            .environment = {{"HX_DRIVER_STEPS", steps}, {"HX_DRIVER_HTML", "~/report.html"}}};
}

// The same on a Jet project.
Operation withJet(Operation operation) {
    operation.name = "jet " + operation.name;
    for (Command& command : operation.before) command = onJet(std::move(command));
    operation.command = onJet(std::move(operation.command));
    for (Command& command : operation.next) command = onJet(std::move(command));
    return operation;
}

Operation converting() {
    Operation operation = commandLine("convert", {"convert", "~/plant.hxs", "~/copy.hxs"});
    operation.next.insert(operation.next.begin(), {"/bin/rm", "-f", "~/copy.hxs"});
    return operation;
}

}  // namespace

Command onJet(Command command) {
    if (command.size() > 2 && command[1] == "new") command.insert(command.begin() + 2, {"--format", "jet"});
    return command;
}

Command Operation::commandOf(int count) const {
    Command full = command;
    if (counted) full.push_back(std::to_string(count));
    return full;
}

bool Operation::usesStudio() const { return command[0] == programs::studio; }

const std::vector<Operation>& operations() {
    static const std::vector<Operation> all = {
        making("new", {"new", "~/plant.hxs"}),
        making("generate", {"generate", "--recipes", "5", "--members", "50", "--big", "30", "~/plant.hxs"}),
        commandLine("import update", {"import", "~/plant.hxs", file("more.json"), "--mode", "update"}),
        commandLine("import add", {"import", "~/plant.hxs", file("more.json")}),
        commandLine("import replace", {"import", "~/plant.hxs", file("more.json"), "--mode", "replace"}),
        commandLine("variables import", {"variables", "import", "~/plant.hxs", file("more.csv")}),
        exporting(),
        macroWork("recipes", 3, onlyTheRecipe),
        macroWork("members", 3, onlyTheFirstMember),
        macroWork("subrecipes", 2),
        macroWork("variables", 1),
        macroWork("settings", 2),
        macroWork("registry", 2),
        studioWork("start", ""),
        studioWork("edit", "macro=edit"),
        studioWork("report", "macro=report"),
        studioWork("samples", "do=actionSampleMacros"),
        converting(),
        withJet(converting()),
        withJet(making("new", {"new", "~/plant.hxs"})),
        withJet(commandLine("import update", {"import", "~/plant.hxs", file("more.json"), "--mode", "update"})),
        withJet(commandLine("import replace", {"import", "~/plant.hxs", file("more.json"), "--mode", "replace"})),
        withJet(commandLine("variables import", {"variables", "import", "~/plant.hxs", file("more.csv")})),
        withJet(macroWork("recipes", 3, onlyTheRecipe)),
        withJet(macroWork("members", 3, onlyTheFirstMember)),
        withJet(macroWork("subrecipes", 2)),
        withJet(macroWork("variables", 1)),
        withJet(studioWork("edit", "macro=edit")),
    };
    return all;
}

std::string inFolder(std::string text, std::string_view from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

Command inFolder(Command command, const std::string& folder) {
    for (std::string& argument : command) argument = inFolder(std::move(argument), "~", folder);
    return command;
}

}  // namespace hx::torture
