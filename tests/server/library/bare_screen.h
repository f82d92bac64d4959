// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <windows.h>

#include "adapters/headless/form_window.h"
#include "forms/scripted_user.h"

namespace hx::server {

/// A hidden window of Windows' own with an empty surface, for the caller to end.
[[nodiscard]] HWND makeBareWindow();

/// Windows of Windows' own with nothing in them, for a user who is a script: what embeds them finds real ones.
class BareScreen : public forms::Screen {
  public:
    /// Both are lent.
    BareScreen(const forms::Script& script, forms::Record& record) : user_(script, record), record_(record) {}
    ~BareScreen() override;

    [[nodiscard]] forms::WindowHandle createWindow(forms::Form& form) override;
    void destroyWindow(forms::Form& form) override;
    void showModal(forms::Form& form, forms::WindowHandle owner) override { user_.showModal(form, owner); }
    void bringToFront(forms::Form& form) override;
    forms::message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override {
        return user_.messageBox(text, style, title);
    }
    void popUp(forms::Bar& bar, forms::Band& band) override { user_.popUp(bar, band); }
    bool chooseFont(forms::Font::Values& font) override { return user_.chooseFont(font); }
    void beep() override { ++record_.beeps; }
    [[nodiscard]] forms::Pointer pointer() const override { return pointer_; }
    void setPointer(forms::Pointer pointer) noexcept override { pointer_ = pointer; }
    void sendKeys(forms::Form&, std::string_view) override {}
    [[nodiscard]] automation::Language language() const override { return automation::Language::english; }
    [[nodiscard]] double twipsPerPixel() const override { return 15; }

  private:
    struct Shown {
        HWND window;
        std::unique_ptr<headless::FormWindow> room;
        forms::Subscription changed;
    };
    void apply(forms::Form& form, HWND window) const;

    forms::ScriptedUser user_;
    forms::Record& record_;
    std::map<const forms::Form*, Shown> shown_;
    forms::Pointer pointer_ = forms::Pointer::standard;
};

}  // namespace hx::server
