// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "exchange/content.h"

namespace hx::exchange {

/// Told how much of how much is done, of rows when the total is 0. What it throws ends the work.
using Progress = std::function<void(std::int64_t done, std::int64_t total)>;

/// Reads an export file. Throws automation::Error with the line and the field of what is wrong.
[[nodiscard]] Content parseContent(const std::string& path, const Progress& progress = {});
/// Reads a project or an export, whichever the file is.
[[nodiscard]] Content loadContent(ado::Provider& provider, const std::string& path, const Progress& progress = {});

}  // namespace hx::exchange
