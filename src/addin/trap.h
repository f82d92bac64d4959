// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <utility>

#include "automation/error.h"
#include "editor/add_in.h"

namespace hx::addin {

/// Runs the action; true when it ended without an error. An error is shown under the procedure's name and goes no
/// further: nothing is ever passed back to the studio.
template <class Action>
bool trap(forms::Screen& screen, std::string_view procedure, Action&& action) noexcept {
    try {
        try {
            std::forward<Action>(action)();
            return true;
        } catch (...) {
            editor::showError(screen, automation::caughtError(), procedure);
        }
    } catch (...) {
        // The message box itself failed: there is no way left to tell the user.
    }
    return false;
}

}  // namespace hx::addin
