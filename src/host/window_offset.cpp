// SPDX-License-Identifier: MIT
#include "host/window_offset.h"

namespace hx::host {

float WindowLeftOffset(const WindowOperations& windows, WindowHandle a, WindowHandle b) {
    return static_cast<float>(windows.rect(a).left) - static_cast<float>(windows.rect(b).left);
}

float WindowTopOffset(const WindowOperations& windows, WindowHandle a, WindowHandle b) {
    return static_cast<float>(windows.rect(a).top) - static_cast<float>(windows.rect(b).top);
}

}  // namespace hx::host
