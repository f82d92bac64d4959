#pragma once

#include <string>

#include "exchange/content.h"

namespace hx::exchange {

/// Reads an export file. Throws automation::Error with the line and the field of what is wrong.
[[nodiscard]] Content parseContent(const std::string& path);
/// Reads a project or an export, whichever the file is.
[[nodiscard]] Content loadContent(ado::Provider& provider, const std::string& path);

}  // namespace hx::exchange
