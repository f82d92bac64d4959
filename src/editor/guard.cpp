#include "editor/guard.h"

#include <exception>

namespace hx::editor {

using automation::Error;

void showError(forms::Screen& screen, const Error& error, std::string_view procedure) {
    screen.messageBox(error.message(), forms::message::ok, procedure);
}

void reportCaught(AddIn& addIn, std::string_view procedure) noexcept {
    try {
        const Busy busy(addIn.busy());
        forms::Screen& screen = addIn.services().screen;
        try {
            throw;
        } catch (const Error& error) {
            showError(screen, error, procedure);
        } catch (const std::exception& error) {
            showError(screen, Error(automation::errFail, error.what()), procedure);
        } catch (...) {
            showError(screen, Error(automation::errFail, "Unknown error"), procedure);
        }
    } catch (...) {
        // The message box itself failed: there is no way left to tell the user.
    }
}

}  // namespace hx::editor
