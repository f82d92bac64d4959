// SPDX-License-Identifier: MIT
#pragma once

#include "forms/screen.h"

namespace hx::forms {

/// Hands everything on to another screen: a base for what does some of it otherwise.
class RelayingScreen : public Screen {
  public:
    /// `next` is lent.
    explicit RelayingScreen(Screen& next) : next_(next) {}

    [[nodiscard]] WindowHandle createWindow(Form& form) override { return next_.createWindow(form); }
    void destroyWindow(Form& form) override { next_.destroyWindow(form); }
    void showModal(Form& form, WindowHandle owner) override { next_.showModal(form, owner); }
    void bringToFront(Form& form) override { next_.bringToFront(form); }
    message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override {
        return next_.messageBox(text, style, title);
    }
    void popUp(Bar& bar, Band& band) override { next_.popUp(bar, band); }
    bool chooseFont(Font::Values& font) override { return next_.chooseFont(font); }
    void beep() override { next_.beep(); }
    [[nodiscard]] Pointer pointer() const override { return next_.pointer(); }
    void setPointer(Pointer pointer) noexcept override { next_.setPointer(pointer); }
    void sendKeys(Form& form, std::string_view keys) override { next_.sendKeys(form, keys); }
    [[nodiscard]] automation::Language language() const override { return next_.language(); }
    [[nodiscard]] double twipsPerPixel() const override { return next_.twipsPerPixel(); }

  private:
    Screen& next_;
};

}  // namespace hx::forms
