// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <windows.h>

#include "adapters/qt/screen/qt_screen.h"
#include "forms/relaying_screen.h"

namespace hx::server {

/// The toolkit's windows in a host that knows nothing of it: a form's handle is that of its native window, which the
/// host can take into a window of its own. While a dialog is open the host's windows take no input.
class HostedScreen : public forms::RelayingScreen {
  public:
    /// Both are lent.
    HostedScreen(qt::QtWindows& windows, qt::QtScreen& screen)
        : RelayingScreen(screen), windows_(windows), screen_(screen) {}

    [[nodiscard]] forms::WindowHandle createWindow(forms::Form& form) override;
    void destroyWindow(forms::Form& form) override;
    void showModal(forms::Form& form, forms::WindowHandle owner) override;
    forms::message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override;
    bool chooseFont(forms::Font::Values& font) override;

    /// The toolkit's handle of a form's; 0 for another's.
    [[nodiscard]] forms::WindowHandle toolkitHandle(forms::WindowHandle native) const;
    /// The window that the form has by now: a dialog gets another one with each window that it stands over.
    [[nodiscard]] forms::WindowHandle nativeWindow(forms::WindowHandle handle) const;

  private:
    class HostWaits;

    qt::QtWindows& windows_;
    qt::QtScreen& screen_;
    std::map<const forms::Form*, forms::WindowHandle> natives_;
    std::map<forms::WindowHandle, forms::WindowHandle> toolkits_;  ///< by the native ones
};

}  // namespace hx::server
