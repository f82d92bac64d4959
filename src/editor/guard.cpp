// SPDX-License-Identifier: MIT
#include "editor/guard.h"

namespace hx::editor {

using automation::Error;

void showError(forms::Screen& screen, const Error& error, std::string_view procedure) {
    screen.messageBox(error.message(screen.language()), forms::message::ok, procedure);
}

void reportCaught(AddIn& addIn, std::string_view procedure) noexcept {
    try {
        const Busy busy(addIn.busy());
        showError(addIn.services().screen, automation::caughtError(), procedure);
    } catch (...) {
        // The message box itself failed: there is no way left to tell the user.
    }
}

}  // namespace hx::editor
