// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include "automation/restore.h"
#include "automation/text.h"
#include "forms/command_button.h"
#include "forms/known_value.h"

namespace hx::forms {

Form::Form(std::string name, Screen& screen) : Control(std::move(name)), screen_(screen) { setVisible(false); }

Form::~Form() {
    if (loaded()) screen_.destroyWindow(*this);
    for (const auto& control : controls_) control->leaveForm();
}

void Form::load() {
    if (loaded() || loading_) return;
    const auto keep = share();
    const automation::Restore loading(loading_, true);
    loadEvent.raise();
    handle_ = screen_.createWindow(*this);
    if (visible()) changed.raise("Visible");  // a handler has shown it before there was a window
}

bool Form::unload(UnloadMode mode) {
    if (!loaded()) return true;
    if (unloading_) return false;
    const auto keep = share();
    const automation::Restore unloading(unloading_, true);
    bool cancel = false;
    queryUnloadEvent.raise(cancel, mode);
    if (cancel) return false;
    unloadEvent.raise();
    setVisible(false);
    screen_.destroyWindow(*this);
    handle_ = 0;
    return true;
}

void Form::show() {
    const auto keep = share();
    load();
    setVisible(true);
}

void Form::hide() { setVisible(false); }

void Form::showModal(WindowHandle owner) {
    const auto keep = share();
    load();
    screen_.showModal(*this, owner);
}

void Form::bringToFront() {
    if (loaded()) screen_.bringToFront(*this);
}

void Form::setWindowState(WindowState state) {
    requireKnown(state, {WindowState::normal, WindowState::minimised, WindowState::maximised});
    assign(windowState_, state, "WindowState");
}

Control* Form::findControl(std::string_view name, std::optional<std::int16_t> index) const {
    for (const auto& control : controls_) {
        if (control->index() == index && automation::equalIgnoreCase(control->name(), name)) return control.get();
    }
    return nullptr;
}

bool Form::hasControl(std::string_view name) const {
    for (const auto& control : controls_) {
        if (automation::equalIgnoreCase(control->name(), name)) return true;
    }
    return false;
}

void Form::clientAreaChanged(double width, double height) {
    scaleWidth_ = width;
    scaleHeight_ = height;
    resizeEvent.raise();
}

bool Form::keyReported(Control& at, KeyMove move, KeyEvent key, KeyPress typed) {
    const auto keep = at.share();
    const auto keepForm = share();
    const auto isTaken = [&](auto& event, const auto& tell) {
        if (event.swallowed()) return false;  // a key without a code, or one that types nothing
        if (keyPreview_ && &at != this) tell(*this);
        if (loaded() && !event.swallowed()) tell(at);
        return !loaded() || event.swallowed();
    };
    const bool down = move == KeyMove::down;
    return isTaken(key, [&](Control& to) { down ? to.keyDown(key) : to.keyUp(key); }) ||
           (down && isTaken(typed, [&](Control& to) { to.keyPress(typed); }));
}

CommandButton* Form::buttonOf(std::int16_t code) const {
    if (code != key::enter && code != key::escape) return nullptr;
    CommandButton* pressed = nullptr;
    for (const auto& control : controls_) {
        auto* button = dynamic_cast<CommandButton*>(control.get());
        if (button == nullptr || !button->visible()) continue;
        if (code == key::enter && button->hasFocus()) return button;
        if (pressed == nullptr && (code == key::enter ? button->isDefault() : button->isCancel())) pressed = button;
    }
    return pressed;
}

void Form::boundsReported(double left, double top, double width, double height, WindowState state) {
    boundsKnown(left, top, width, height);
    windowState_ = state;
}

}  // namespace hx::forms
