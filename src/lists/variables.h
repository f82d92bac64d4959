// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lists/listed_variable.h"

namespace hx::lists {

/// Reads a list of variables, CSV or a PLCopen project, whichever the file is. `encoding` is that of CSV, recognised
/// when it is empty. Throws automation::Error with line and field of what is wrong.
void readVariables(const std::string& path, const std::string& encoding, const VariableLimits& limits,
                   VariableReceiver& receiver);

}  // namespace hx::lists
