#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Makes the project `path` of the sample in `folder`. Throws automation::Error; there is then no file.
void buildSample(const std::string& folder, const std::string& path, const Output& output);

}  // namespace hx::cli
