// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cli/command_line.h"
#include "exchange/differences.h"

namespace hx::cli {

/// Prints a line for each, or one JSON object.
void print(const std::vector<exchange::Difference>& differences, bool json, const Output& output);

}  // namespace hx::cli
