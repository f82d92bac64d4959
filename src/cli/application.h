// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/command.h"

namespace hx::cli {

/// The commands and options of hxrecipe. Parsing arguments sets `chosen`, which must live as long, as must `output`.
[[nodiscard]] std::unique_ptr<CLI::App> makeApplication(Command& chosen, const Output& output);

}  // namespace hx::cli
