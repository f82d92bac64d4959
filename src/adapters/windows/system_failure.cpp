// SPDX-License-Identifier: MIT
#include "adapters/windows/system_failure.h"

#include <system_error>

#include "automation/error.h"
#include "automation/text.h"

namespace hx::windows {

void fail(DWORD number) {
    const std::string message = std::system_category().message(static_cast<int>(number));
    throw automation::Error(HRESULT_FROM_WIN32(number), std::string(automation::trim(message)));
}

}  // namespace hx::windows
