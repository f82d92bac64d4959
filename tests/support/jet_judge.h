// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "ado/provider.h"

namespace hx::support {

/// Where what the provider reads of the recipe tables of a Jet project differs from what mdb-export of the mdbtools
/// does; empty when it is the same. Where there are no mdbtools nothing is compared.
[[nodiscard]] std::string differenceFromMdbExport(ado::Provider& provider, const std::string& path);

}  // namespace hx::support
