// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Prints one recipe, given by name or ID: its columns, variables, the tree of its sub-recipes and where it is used.
/// Throws automation::Error.
void show(const std::string& path, const std::string& recipe, bool json, const Output& output);

}  // namespace hx::cli
