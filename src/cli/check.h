#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

struct CheckOptions {
    std::string path;
    bool json = false;
    bool thorough = false;  ///< compares the indexes of large files, too, with their tables
};

/// Looks for what is wrong in a project and prints a line for each finding (or all as JSON). Gives `succeeded` when
/// there is none, else `found`. Throws automation::Error.
[[nodiscard]] int check(const CheckOptions& options, const Output& output);

}  // namespace hx::cli
