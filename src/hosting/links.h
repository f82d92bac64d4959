// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace hx::hosting {

/// The file that a path's links lead to, also when it does not exist; the path itself without links.
[[nodiscard]] std::filesystem::path behindLinks(std::filesystem::path path);

/// Where a file lies whatever links lead to it, or will lie when it is made. Empty when nobody can say: for what the
/// system takes for something else than the file of that name, and for a link that leads to nothing.
[[nodiscard]] std::filesystem::path placeOf(const std::filesystem::path& path);

}  // namespace hx::hosting
