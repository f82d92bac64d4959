// SPDX-License-Identifier: MIT
#include "forms/control.h"

#include "forms/form.h"

namespace hx::forms {

Control::Control(std::string name) : name_(std::move(name)) {
    font_.changed.connect([this] { changed.raise("Font"); });
}

void Control::leaveForm() noexcept {
    form_ = nullptr;
    container_ = nullptr;
}

void Control::boundsKnown(double left, double top, double width, double height) noexcept {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
}

void Control::move(double left, double top, double width, double height) {
    if (left_ == left && top_ == top && width_ == width && height_ == height) return;
    boundsKnown(left, top, width, height);
    changed.raise("Bounds");
}

void Control::setFocus() {
    if (!focusRequestEvent.hasHandlers()) return focusChanged(true);
    focusRequestEvent.raise();
}

// One control of a form has the keyboard; a view may report the two sides of a change in any order.
void Control::focusChanged(bool focused) {
    if (hasFocus_ == focused) return;
    const auto keep = share();
    if (focused && form_ != nullptr) {
        const auto controls = form_->controls();
        for (const auto& other : controls) {
            if (other.get() != this) other->focusChanged(false);
        }
    }
    hasFocus_ = focused;
    focusEvent.raise(focused);
}

}  // namespace hx::forms
