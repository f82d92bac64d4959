// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "forms/screen.h"
#include "host/system_services.h"

namespace hx::server {

/// What shows the editor of one add-in in a host, and takes what the user does.
class View {
  public:
    virtual ~View() = default;
    [[nodiscard]] virtual forms::Screen& screen() = 0;
    [[nodiscard]] virtual host::WindowOperations& windows() = 0;
    /// The native window that stands for a handle by now: that of a dialog changes with the window that it stands over.
    [[nodiscard]] virtual host::WindowHandle nativeWindow(host::WindowHandle handle) const { return handle; }
    [[nodiscard]] virtual host::Clipboard& clipboard() = 0;
    [[nodiscard]] virtual host::HelpViewer& help() = 0;
    /// Tells the path of the project, whose variables the choices offer. It is asked while the add-in lives.
    virtual void setProject(std::function<std::string()> path) = 0;
    /// For hosts that lend no choices of their own.
    [[nodiscard]] virtual host::ItemSelection& items() = 0;
    [[nodiscard]] virtual host::PathSelection& folders() = 0;
};

}  // namespace hx::server
