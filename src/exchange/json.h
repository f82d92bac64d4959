// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include "exchange/content.h"

namespace hx::exchange {

/// An object keeps the order in which its members were given.
using Json = nlohmann::ordered_json;

/// Bytes become {"hex": "00FF"}.
[[nodiscard]] Json jsonOf(const Value& value);

}  // namespace hx::exchange
