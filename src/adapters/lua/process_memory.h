// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace hx::lua {

/// Bytes that the program has taken for its data and keeps in memory; 0 where the system does not tell.
[[nodiscard]] std::size_t processMemory();
/// Lets the system have what the program has given up.
void giveBackMemory();

}  // namespace hx::lua
