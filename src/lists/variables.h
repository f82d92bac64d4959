// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lists/csv_variables.h"
#include "lists/listed_variable.h"

namespace hx::lists {

/// Whether it is read as a PLCopen project.
[[nodiscard]] bool isPlcopen(const std::string& path);
/// Reads a list of variables, CSV or a PLCopen project, whichever the file is. The choice is for CSV. Throws
/// automation::Error with line and field of what is wrong.
void readVariables(const std::string& path, const CsvChoice& choice, const VariableLimits& limits,
                   VariableReceiver& receiver);

}  // namespace hx::lists
