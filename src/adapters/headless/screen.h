// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>

#include "adapters/headless/form_window.h"
#include "adapters/headless/window_operations.h"
#include "forms/scripted_user.h"

namespace hx::headless {

/// A display that shows nothing: the script answers, the record keeps what was shown.
class Screen : public forms::Screen {
  public:
    /// All are lent.
    Screen(const forms::Script& script, forms::Record& record, WindowOperations& windows)
        : user_(script, record), record_(record), windows_(windows) {}

    void setLanguage(automation::Language language) noexcept { language_ = language; }
    /// The room of a maximised form, in twips.
    static constexpr double areaWidth = 19200, areaHeight = 12000;

    /// The form on top of those shown modally; null when there is none.
    [[nodiscard]] forms::Form* modalForm() const noexcept { return user_.modalForm(); }

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
    void setPointer(forms::Pointer pointer) noexcept override;
    void sendKeys(forms::Form& form, std::string_view keys) override;
    [[nodiscard]] automation::Language language() const override { return language_; }
    [[nodiscard]] double twipsPerPixel() const override { return WindowOperations::twipsPerPixel; }

  private:
    struct Shown {
        forms::WindowHandle handle;
        std::unique_ptr<FormWindow> window;
    };

    forms::ScriptedUser user_;
    forms::Record& record_;
    WindowOperations& windows_;
    std::map<const forms::Form*, Shown> shown_;
    automation::Language language_ = automation::Language::english;
    forms::Pointer pointer_ = forms::Pointer::standard;
};

}  // namespace hx::headless
