// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

namespace hx::qt {

/// Whether the parts of a compiled help file that lead a reader through it hold together: its headers, its directory,
/// the places of its objects and the tables of its compressed section. libchm trusts all of these; a file for which
/// this is false must not be given to it. What the objects contain is not looked at.
[[nodiscard]] bool isSoundHelpFile(std::span<const std::uint8_t> bytes);

}  // namespace hx::qt
