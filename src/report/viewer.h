// SPDX-License-Identifier: MIT
#pragma once

#include "forms/screen.h"
#include "report/report.h"

namespace hx::report {

/// Shows a report to the user and returns when the user is done with it.
class Viewer {
  public:
    virtual ~Viewer() = default;
    /// In front of the window `owner`, which may be 0 or unknown.
    virtual void show(const Report& report, forms::WindowHandle owner) = 0;
};

}  // namespace hx::report
