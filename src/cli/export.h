// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Writes all of both recipe tables of a project into a text file. A file that is there already is replaced only when
/// it is an export, too. Throws automation::Error; the file is then as before.
void exportProject(const std::string& path, const std::string& target, const Output& output);

}  // namespace hx::cli
