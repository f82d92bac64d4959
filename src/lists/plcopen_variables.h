// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lists/listed_variable.h"

namespace hx::lists {

/// Reads the variables of a PLCopen project: the global ones, and those of programs as Program.Variable. Structures
/// become dotted names (Motor.Speed), arrays indexed ones (Level[1,2]), instances of function blocks their inputs and
/// outputs; docs/command-line.md tells all of it. Types and comments that are longer than the limits are cut. Throws
/// automation::Error with line and field of what is wrong.
void readPlcopenVariables(const std::string& path, const VariableLimits& limits, VariableReceiver& receiver);

}  // namespace hx::lists
