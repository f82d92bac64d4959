// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "automation/text.h"

namespace hx::host {

/// What the name of a project's file ends in, in whatever case.
inline constexpr std::string_view projectExtension = ".hxs";

[[nodiscard]] inline bool isProjectFile(std::string_view path) {
    return path.size() >= projectExtension.size() &&
           automation::equalIgnoreCase(path.substr(path.size() - projectExtension.size()), projectExtension);
}

/// Whether the add-in can be told of the file: the connection string puts its path between other values, with nothing
/// around it.
[[nodiscard]] inline bool isNameable(std::string_view path) { return path.find_first_of(";\"") == path.npos; }

}  // namespace hx::host
