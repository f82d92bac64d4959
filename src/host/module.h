// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "automation/dispatch.h"
#include "host/services.h"

namespace hx::host {

/// The one function that an add-in module exports under the name `moduleEntryName`, with C linkage: creates the object
/// of a program identifier, or sets `object` to empty when the module does not know it. Throws nothing. `services` must
/// outlive the object.
using ModuleEntry = void (*)(std::string_view programId, const Services& services, automation::ObjectRef& object);
inline constexpr const char* moduleEntryName = "hxCreateObject";

}  // namespace hx::host
