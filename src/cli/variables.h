// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>

#include "cli/command.h"

namespace hx::cli {

/// Adds the commands that work on a project's variable list.
void addVariables(CLI::App& app, Command& chosen, const Output& output);

}  // namespace hx::cli
