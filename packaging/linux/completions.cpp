// SPDX-License-Identifier: MIT

// Writes what bash, zsh and fish complete of hxrecipe into a folder.
#include <fstream>
#include <functional>
#include <iostream>
#include <sstream>

#include "cli/application.h"

namespace hx::cli {

namespace {

struct Option {
    std::string name, description;
    bool takesValue = false;
};

/// A command by its full name, such as "variables import"; the empty one stands for hxrecipe itself.
struct Entry {
    std::string name, description;
    std::vector<Option> options;
    std::vector<std::pair<std::string, std::string>> commands;  // below it, with their descriptions
};

void collect(const CLI::App& app, const std::string& name, std::vector<Entry>& entries) {
    Entry entry{name, app.get_description(), {}, {}};
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& longName : option->get_lnames())
            entry.options.push_back({longName, option->get_description(), option->get_items_expected_max() > 0});
    }
    const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
    for (const CLI::App* command : commands)
        entry.commands.emplace_back(command->get_name(), command->get_description());
    entries.push_back(std::move(entry));
    for (const CLI::App* command : commands)
        collect(*command, name + (name.empty() ? "" : " ") + command->get_name(), entries);
}

// In single quotes, for each of the shells.
std::string quoted(const std::string& text, const std::string& quote) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? quote : std::string(1, c);
    return result + "'";
}

std::string wordsOf(const Entry& entry) {
    std::string words;
    for (const auto& [name, description] : entry.commands) words += " " + name;
    for (const Option& option : entry.options) words += " --" + option.name;
    return words.empty() ? words : words.substr(1);
}

std::string bash(const std::vector<Entry>& entries) {
    std::ostringstream text;
    text << "# Completion of hxrecipe for bash.\n"
            "_hxrecipe() {\n"
            "    local command= word words=\n"
            "    for word in \"${COMP_WORDS[@]:1:COMP_CWORD-1}\"; do\n"
            "        case \"${command:+$command }$word\" in\n"
            "            ";
    const char* separator = "";
    for (const Entry& entry : entries) {
        if (entry.name.empty()) continue;
        text << separator << quoted(entry.name, "'\\''");
        separator = " | ";
    }
    text << ") command=${command:+$command }$word ;;\n"
            "        esac\n"
            "    done\n"
            "    case $command in\n";
    for (const Entry& entry : entries)
        text << "        " << quoted(entry.name, "'\\''") << ") words=" << quoted(wordsOf(entry), "'\\''") << " ;;\n";
    text << "    esac\n"
            "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"${COMP_WORDS[COMP_CWORD]}\")\n"
            "}\n"
            "complete -o default -F _hxrecipe hxrecipe\n";
    return text.str();
}

std::string zsh(const std::vector<Entry>& entries) {
    std::ostringstream text;
    text << "#compdef hxrecipe\n\n"
            "local command= word\n"
            "local -a names\n"
            "for word in ${words[2,CURRENT-1]}; do\n"
            "    case \"${command:+$command }$word\" in\n";
    for (const Entry& entry : entries) {
        if (!entry.name.empty()) text << "        " << quoted(entry.name, "'\\''") << ") command=\"${command:+$command }$word\" ;;\n";
    }
    text << "    esac\n"
            "done\n"
            "case $command in\n";
    for (const Entry& entry : entries) {
        text << "    " << quoted(entry.name, "'\\''") << ") names=(";
        for (const auto& [name, description] : entry.commands) text << "\n        " << quoted(name + ":" + description, "'\\''");
        for (const Option& option : entry.options)
            text << "\n        " << quoted("--" + option.name + ":" + option.description, "'\\''");
        text << ") ;;\n";
    }
    text << "esac\n"
            "if [[ $PREFIX == -* || $command == '' || $command == variables ]]; then\n"
            "    _describe hxrecipe names\n"
            "else\n"
            "    _files\n"
            "fi\n";
    return text.str();
}

std::string fish(const std::vector<Entry>& entries) {
    std::ostringstream text;
    text << "# Completion of hxrecipe for fish.\n";
    for (const Entry& entry : entries) {
        std::string condition = "__fish_use_subcommand";
        if (!entry.name.empty()) {
            condition.clear();
            std::istringstream names(entry.name);
            for (std::string name; names >> name;)
                condition += (condition.empty() ? "" : "; and ") + ("__fish_seen_subcommand_from " + name);
        }
        for (const auto& [name, description] : entry.commands) {
            text << "complete -c hxrecipe -f -n " << quoted(condition, "\\'") << " -a " << name << " -d "
                 << quoted(description, "\\'") << "\n";
        }
        for (const Option& option : entry.options) {
            text << "complete -c hxrecipe -n " << quoted(condition, "\\'") << " -l " << option.name
                 << (option.takesValue ? " -r" : "") << " -d " << quoted(option.description, "\\'") << "\n";
        }
    }
    return text.str();
}

void write(const std::string& file, const std::string& text) {
    std::ofstream stream(file);
    stream << text;
    if (!stream.flush()) throw std::runtime_error("cannot write " + file);
}

void writeAll(const std::string& folder) {
    Output output{std::cout, std::cerr};
    Command chosen;
    std::vector<Entry> entries;
    collect(*makeApplication(chosen, output), "", entries);
    write(folder + "/hxrecipe", bash(entries));
    write(folder + "/_hxrecipe", zsh(entries));
    write(folder + "/hxrecipe.fish", fish(entries));
}

}  // namespace

}  // namespace hx::cli

int main(int argc, char** argv) {
    try {
        hx::cli::writeAll(argc > 1 ? argv[1] : ".");
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
