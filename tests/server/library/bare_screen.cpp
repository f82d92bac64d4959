// SPDX-License-Identifier: MIT
#include "bare_screen.h"

#include "adapters/windows/native_windows.h"
#include "hosting/windows_text.h"

namespace hx::server {

namespace {

constexpr int screenWidth = 19200, screenHeight = 12000;  // twips of a maximised form

int pixels(double twips) { return static_cast<int>(twips / 15); }

}  // namespace

HWND makeBareWindow() {
    // Its class is there in every process.
    return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, GetModuleHandleW(nullptr),
                           nullptr);
}

BareScreen::~BareScreen() {
    for (const auto& [form, shown] : shown_) DestroyWindow(shown.window);
}

forms::WindowHandle BareScreen::createWindow(forms::Form& form) {
    const HWND window = makeBareWindow();
    Shown& shown = shown_[&form];
    shown.window = window;
    shown.room = std::make_unique<headless::FormWindow>(form, screenWidth, screenHeight);
    shown.changed = form.changed.subscribe([this, &form, window](std::string_view) { apply(form, window); });
    apply(form, window);
    return windows::toHandle(window);
}

void BareScreen::destroyWindow(forms::Form& form) {
    const auto found = shown_.find(&form);
    if (found == shown_.end()) return;
    const HWND window = found->second.window;
    shown_.erase(found);
    user_.forget(form);
    DestroyWindow(window);
}

void BareScreen::apply(forms::Form& form, HWND window) const {
    SetWindowTextW(window, hosting::toWide(form.caption()).c_str());
    MoveWindow(window, pixels(form.left()), pixels(form.top()), pixels(form.width()), pixels(form.height()), FALSE);
    ShowWindow(window, form.visible() ? SW_SHOWNA : SW_HIDE);
}

void BareScreen::bringToFront(forms::Form& form) {
    record_.broughtToFront.push_back(form.name());
    const auto found = shown_.find(&form);
    if (found != shown_.end() && form.visible())
        SetWindowPos(found->second.window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

}  // namespace hx::server
