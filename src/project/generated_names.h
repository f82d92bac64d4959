// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace hx::project {

/// Names as a beverage line has them, different for every number from 0.
[[nodiscard]] std::string recipeName(std::int64_t number);
[[nodiscard]] std::string variableName(std::int64_t number);
[[nodiscard]] std::string variableType(std::int64_t number);

}  // namespace hx::project
