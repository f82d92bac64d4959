#include "adapters/qt/grid_errors.h"

namespace hx::qt {

using automation::Error;

void GridErrors::begin() noexcept {
    drawing_ = true;
    failed_ = read_ = false;
}

void GridErrors::end() noexcept {
    drawing_ = false;
    if (read_ && !failed_) told_ = false;
}

void GridErrors::reportCaught() noexcept {
    try {
        try {
            throw;
        } catch (const Error& error) {
            report_(error);
        } catch (const std::exception& error) {
            report_(Error(automation::errFail, error.what()));
        } catch (...) {
            report_(Error(automation::errFail, "Unknown error"));
        }
    } catch (...) {
        // The report itself failed: there is no way left to tell the user.
    }
}

}  // namespace hx::qt
