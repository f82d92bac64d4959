// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/run_macro_studio.h"

namespace hx::cli {

/// A macro and what it is run with.
struct MacroPlan {
    std::string macro;
    std::vector<std::string> arguments;
    std::string project;  ///< opened before; empty for none
    std::string folder;   ///< whose files the macro may use besides the project's; empty for none
    MacroStudioOptions studio;
};

/// Runs a macro on a studio without a screen. The exit status: 0 done, 1 the macro failed, or the editor told of a
/// failure that nobody has read.
int runMacro(const MacroPlan& plan, const Output& output);

/// Adds the command `run`.
void addRunMacro(CLI::App& app, Command& chosen, const Output& output);

}  // namespace hx::cli
