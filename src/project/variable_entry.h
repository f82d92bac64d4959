// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "project/reader.h"

namespace hx::project {

/// What the variable list says of a variable.
struct VariableEntry {
    std::string name, type, comment;
};

/// The variable of this name, ignoring case; nothing when it is not in the list.
[[nodiscard]] std::optional<VariableEntry> findVariable(Reader& reader, const std::string& name);

}  // namespace hx::project
