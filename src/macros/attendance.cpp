#include "macros/attendance.h"

namespace hx::macros {

void Attendance::begin(std::function<bool()> cancels) {
    end();
    cancels_ = std::move(cancels);
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
