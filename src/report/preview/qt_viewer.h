// SPDX-License-Identifier: MIT
#pragma once

#include "host/services.h"
#include "report/viewer.h"

namespace hx::report {

/// Shows a report in a preview window, modal over the studio's window.
class QtViewer : public Viewer {
  public:
    /// The services are lent.
    explicit QtViewer(const host::Services& services) : services_(services) {}
    void show(const Report& report, forms::WindowHandle owner) override;

  private:
    const host::Services& services_;
};

}  // namespace hx::report
