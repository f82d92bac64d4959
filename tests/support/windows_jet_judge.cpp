// SPDX-License-Identifier: MIT
#include "support/jet_judge.h"

namespace hx::support {

std::string differenceFromMdbExport(ado::Provider& /*provider*/, const std::string& /*path*/) { return {}; }

}  // namespace hx::support
