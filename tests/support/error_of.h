// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "automation/error.h"

namespace hx::support {

/// The error that the action ends in; number 0 and "no error" when it ends in none.
template <class Action>
[[nodiscard]] automation::Error errorOf(Action&& action) {
    try {
        std::forward<Action>(action)();
    } catch (const automation::Error& error) {
        return error;
    }
    return {0, "no error"};
}

template <class Action>
[[nodiscard]] std::int32_t errorNumber(Action&& action) {
    return errorOf(std::forward<Action>(action)).number();
}

}  // namespace hx::support
