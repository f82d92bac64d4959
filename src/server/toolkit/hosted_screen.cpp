// SPDX-License-Identifier: MIT
#include "server/toolkit/hosted_screen.h"

#include <set>

#include "adapters/windows/native_windows.h"
#include "server/toolkit/toolkit_application.h"

namespace hx::server {

/// While it lives, the windows of the host in which forms lie take no input.
class HostedScreen::HostWaits {
  public:
    explicit HostWaits(const HostedScreen& screen) {
        for (const auto& [native, toolkit] : screen.toolkits_) {
            const HWND window = windows::toHwnd(native), host = GetAncestor(window, GA_ROOT);
            if (host != window && IsWindowEnabled(host)) hosts_.insert(host);
        }
        for (const HWND host : hosts_) EnableWindow(host, FALSE);
    }
    ~HostWaits() {
        for (const HWND host : hosts_) EnableWindow(host, TRUE);
    }
    HostWaits(const HostWaits&) = delete;
    HostWaits& operator=(const HostWaits&) = delete;

  private:
    std::set<HWND> hosts_;
};

forms::WindowHandle HostedScreen::createWindow(forms::Form& form) {
    const forms::WindowHandle toolkit = screen_.createWindow(form);
    QWidget& widget = *windows_.widget(toolkit);
    // The host's window is the frame.
    if (form.layout().empty()) widget.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    const auto native = static_cast<forms::WindowHandle>(widget.winId());
    natives_[&form] = native;
    toolkits_[native] = toolkit;
    return native;
}

void HostedScreen::destroyWindow(forms::Form& form) {
    if (const auto found = natives_.find(&form); found != natives_.end()) {
        toolkits_.erase(found->second);
        natives_.erase(found);
    }
    screen_.destroyWindow(form);
    ToolkitApplication::deleteSoon();
}

forms::WindowHandle HostedScreen::toolkitHandle(forms::WindowHandle native) const {
    const auto found = toolkits_.find(native);
    return found == toolkits_.end() ? 0 : found->second;
}

forms::WindowHandle HostedScreen::nativeWindow(forms::WindowHandle handle) const {
    const QWidget* const widget = windows_.widget(toolkitHandle(handle));
    return widget == nullptr ? handle : static_cast<forms::WindowHandle>(widget->winId());
}

void HostedScreen::showModal(forms::Form& form, forms::WindowHandle owner) {
    const HostWaits waits(*this);
    screen_.showModal(form, toolkitHandle(owner));
}

forms::message::Answer HostedScreen::messageBox(std::string_view text, std::int32_t style, std::string_view title) {
    const HostWaits waits(*this);
    return screen_.messageBox(text, style, title);
}

bool HostedScreen::chooseFont(forms::Font::Values& font) {
    const HostWaits waits(*this);
    return screen_.chooseFont(font);
}

}  // namespace hx::server
