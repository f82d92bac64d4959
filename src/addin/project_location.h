// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "host/services.h"

namespace hx::addin {

/// Turns the name of a project into the full name of its database file, in place; a path that ends in ".hxs" stays as
/// it is. Whether the file exists is not checked. False for an empty name, and after an error, which is shown.
bool ReadCurrentProject(const host::Services& services, std::string& path);

}  // namespace hx::addin
