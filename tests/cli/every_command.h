// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "cli/application.h"

namespace hx::cli {

/// The program's commands, none of which is run.
struct Program {
    std::ostringstream text;
    Output output{text, text};
    Command chosen;
    std::unique_ptr<CLI::App> app = makeApplication(chosen, output);
};

/// Hands on every command with its full name; of a group of commands those in it.
template <class Receive>
void forEachCommand(CLI::App& app, const Receive& receive, const std::string& name = {}) {
    const auto commands = app.get_subcommands(nullptr);
    if (commands.empty()) receive(name, app);
    for (CLI::App* command : commands) {
        forEachCommand(*command, receive, (name.empty() ? "" : name + " ") + command->get_name());
    }
}

}  // namespace hx::cli
