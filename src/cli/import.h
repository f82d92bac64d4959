#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

enum class ImportMode {
    add,     ///< recipes whose name the project lacks; the others stay as they are
    update,  ///< these, and the project's recipes become what the file says of them
    replace  ///< the same, and what is not in the file is deleted
};

// Both throw automation::Error, with line and field when something in the file is wrong; the project is then as before.

/// Brings the recipes of an export into a project, all or nothing. A recipe that the project has keeps its ID; another
/// one gets the ID of the file when it is free, else a new one. When a member changes, all of its recipe are written
/// anew; what the file does not say of those that stay is kept.
void importContent(const std::string& project, const std::string& file, ImportMode mode, const Output& output);
/// Carries the import out, takes it back again and prints what it changed.
void previewImport(const std::string& project, const std::string& file, ImportMode mode, bool json,
                   const Output& output);

}  // namespace hx::cli
