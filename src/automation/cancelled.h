// SPDX-License-Identifier: MIT
#pragma once

namespace hx::automation {

/// Thrown out of work that its user has given up; what it has changed so far is undone on the way. No exception of the
/// standard library, as there is nothing to be told.
struct Cancelled {};

}  // namespace hx::automation
