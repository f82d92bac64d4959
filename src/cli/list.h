// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Prints the recipes of a project by ID, with how many members they have. Throws automation::Error.
void list(const std::string& path, bool json, const Output& output);

}  // namespace hx::cli
