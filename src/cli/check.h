#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Looks for what is wrong in a project and prints a line for each finding (or all as JSON). Gives `succeeded` when
/// there is none, else `found`. Throws automation::Error.
[[nodiscard]] int check(const std::string& path, bool json, const Output& output);

}  // namespace hx::cli
