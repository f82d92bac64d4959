// SPDX-License-Identifier: MIT
#include "host/services.h"

#include "automation/text.h"

namespace hx::host {

bool Services::runsAsLibrary() const { return automation::equalIgnoreCase(PathStyle::fileOf(moduleFile), libraryName); }

}  // namespace hx::host
