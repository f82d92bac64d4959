// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "lists/listed_variable.h"

namespace hx::lists {

/// Reads a list of variables in CSV. `encoding` is recognised when it is empty. Throws automation::Error with line and
/// field of what is wrong.
void readCsvVariables(const std::string& path, const std::string& encoding, VariableReceiver& receiver);

}  // namespace hx::lists
