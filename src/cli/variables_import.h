// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

struct VariablesImport {
    std::string project;
    std::string list;      ///< CSV, or a PLCopen project
    std::string encoding;  ///< of CSV; empty: recognised
    bool dryRun = false;   ///< print what would change, and change nothing
    bool json = false;
};

/// Brings the variables of a list into a project's variable list, all or nothing. Throws automation::Error, with line
/// and field when something in the list is wrong; the project is then as before.
void importVariables(const VariablesImport& plan, const Output& output);

}  // namespace hx::cli
