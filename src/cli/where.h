// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "cli/command_line.h"

namespace hx::cli {

/// Prints what refers to the variable or the recipe of this name, directly and through sub-recipes. Throws
/// automation::Error, also when there is neither.
void where(const std::string& path, const std::string& name, bool json, const Output& output);

}  // namespace hx::cli
