// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "history/change_log.h"

namespace hx::history {

enum class Direction : std::uint8_t { back, forth };

/// Carries recorded changes out, backwards or forwards, in one transaction: rows get back what they held, under their
/// keys. Throws and has changed nothing when a row is not as the changes (backwards) or what was before them (forwards)
/// left it.
void carryOut(ado::Session& session, const ChangeLog& changes, Direction direction);

}  // namespace hx::history
