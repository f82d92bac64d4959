// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_errors.h"

namespace hx::qt {

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
        report_(automation::caughtError());
    } catch (...) {
        // The report itself failed: there is no way left to tell the user.
    }
}

}  // namespace hx::qt
