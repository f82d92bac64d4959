// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace hx::bench {

/// Ends the measurement with this text when what it did is not what it is meant to do.
inline void require(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

}  // namespace hx::bench
