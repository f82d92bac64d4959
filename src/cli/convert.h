// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "adapters/sqlite/project_file.h"
#include "cli/command_line.h"

namespace hx::cli {

/// Copies recipes, members and variable list of a project into a new one of the other format, every ID as it is. Says
/// which tables and columns have no place there. Throws automation::Error, which tells the row, when the new project
/// cannot hold a value; then there is none.
void convertProject(const std::string& from, const std::string& to, const Output& output);

}  // namespace hx::cli
