// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"
#include "project/generator.h"

namespace hx::cli {

/// Makes a project of any size. Throws automation::Error; there is then no file.
void generate(const project::GeneratorPlan& plan, const std::string& path, const Output& output);

}  // namespace hx::cli
