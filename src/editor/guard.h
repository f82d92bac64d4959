// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <utility>

#include "editor/add_in.h"

namespace hx::editor {

/// For a catch handler: shows the error that is being handled under the procedure's name, with the busy flag set.
void reportCaught(AddIn& addIn, std::string_view procedure) noexcept;

/// Runs what the user has started; true when it ended without an error. An error is shown and goes no further: whoever
/// reports a click or a key cannot do anything about it. What the action captures is not used after it.
template <class Action>
bool guard(AddIn& addIn, std::string_view procedure, Action&& action) noexcept {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (...) {
        reportCaught(addIn, procedure);
        return false;
    }
}

}  // namespace hx::editor
