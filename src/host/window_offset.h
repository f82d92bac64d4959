// SPDX-License-Identifier: MIT
#pragma once

#include "host/system_services.h"

namespace hx::host {

/// How far the left edge of window `a` lies to the right of that of `b` on the screen, in pixels; negative when it lies
/// to the left. A handle without a window throws automation::Error.
[[nodiscard]] float WindowLeftOffset(const WindowOperations& windows, WindowHandle a, WindowHandle b);
/// How far the top edge of window `a` lies below that of `b`, in pixels.
[[nodiscard]] float WindowTopOffset(const WindowOperations& windows, WindowHandle a, WindowHandle b);

}  // namespace hx::host
