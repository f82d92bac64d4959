// SPDX-License-Identifier: MIT
#include "macros/attendance.h"

namespace hx::macros {

void Attendance::begin(std::function<bool()> cancels, lua::MacroFiles files) {
    end();
    cancels_ = std::move(cancels);
    files_ = std::move(files);
    running_ = true;
}

void Attendance::end() {
    running_ = false;
    cancels_ = nullptr;
    script = {};
    components.clear();
    record = {};
}

}  // namespace hx::macros
