// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "project/reader.h"
#include "project/replacement.h"

namespace hx::project {

/// What else has to be replaced when a variable gets another name: all that names it, ignoring case, in recipes and
/// their members. What the reader throws is passed on.
[[nodiscard]] std::vector<Replacement> renamingOf(Reader& reader, const std::string& name, const std::string& after);

/// Takes the variables with these keys out of the list, all or none.
void removeVariables(ado::Session& session, std::span<const ado::Key> keys);

}  // namespace hx::project
