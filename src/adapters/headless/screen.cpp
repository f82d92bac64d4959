// SPDX-License-Identifier: MIT
#include "adapters/headless/screen.h"

#include "forms/command_button.h"
#include "forms/key_strokes.h"

namespace hx::headless {

namespace {

forms::Control& focused(forms::Form& form) {
    for (const auto& control : form.controls()) {
        if (control->hasFocus()) return *control;
    }
    return form;
}

void type(forms::Form& form, const forms::KeyStroke& stroke) {
    forms::Control& control = focused(form);
    const auto keep = control.share();
    const forms::KeyEvent key{stroke.code, stroke.shift};
    if (!form.keyReported(control, forms::KeyMove::down, key, {stroke.character})) {
        if (forms::CommandButton* const button = form.buttonOf(stroke.code)) button->click();
    }
    if (form.loaded()) form.keyReported(control, forms::KeyMove::up, key);
}

}  // namespace

forms::WindowHandle Screen::createWindow(forms::Form& form) {
    const forms::WindowHandle handle = windows_.add(form);
    shown_[&form] = {handle, std::make_unique<FormWindow>(form, areaWidth, areaHeight)};
    return handle;
}

void Screen::destroyWindow(forms::Form& form) {
    const auto found = shown_.find(&form);
    if (found == shown_.end()) return;
    windows_.remove(found->second.handle);
    shown_.erase(found);
    user_.forget(form);
}

void Screen::bringToFront(forms::Form& form) {
    record_.broughtToFront.push_back(form.name());
    if (form.windowState() == forms::WindowState::minimised) form.setWindowState(forms::WindowState::normal);
    const auto found = shown_.find(&form);
    if (found != shown_.end() && form.visible()) windows_.activate(found->second.handle, host::window::active);
}

void Screen::setPointer(forms::Pointer pointer) noexcept {
    pointer_ = pointer;
    try {
        record_.pointers.push_back(pointer);
    } catch (const std::bad_alloc&) {
        // The record alone lacks it.
    }
}

void Screen::sendKeys(forms::Form& form, std::string_view keys) {
    const auto keep = form.share();
    record_.sentKeys.push_back({form.name(), std::string(keys)});
    for (const forms::KeyStroke& stroke : forms::keyStrokes(keys)) {
        if (form.loaded()) type(form, stroke);
    }
}

}  // namespace hx::headless
