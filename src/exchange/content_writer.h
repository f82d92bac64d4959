// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exchange/content.h"

namespace hx::exchange {

/// The text of an export. Throws automation::Error when a value cannot be written as JSON.
[[nodiscard]] std::string exportOf(const Content& content);

}  // namespace hx::exchange
