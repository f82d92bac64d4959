// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"

namespace hx::forms {

/// A display that writes down what it is asked for.
class FakeScreen : public Screen {
  public:
    WindowHandle createWindow(Form& form) override {
        calls.push_back("create " + form.name());
        return ++lastHandle;
    }
    void destroyWindow(Form& form) override { calls.push_back("destroy " + form.name()); }
    void showModal(Form& form, WindowHandle owner) override {
        calls.push_back("modal " + form.name() + " before " + std::to_string(owner));
        form.setVisible(true);
        if (whileModal) whileModal();
        form.setVisible(false);
    }
    void bringToFront(Form& form) override { calls.push_back("front " + form.name()); }
    message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override {
        calls.push_back("message " + std::string(text) + " | " + std::to_string(style) + " | " + std::string(title));
        return message::Answer::ok;
    }
    void popUp(Bar&, Band&) override { calls.emplace_back("pop up"); }
    bool chooseFont(Font::Values&) override { return false; }
    void beep() override { calls.emplace_back("beep"); }
    [[nodiscard]] Pointer pointer() const override { return Pointer::standard; }
    void setPointer(Pointer) noexcept override {}
    void sendKeys(Form&, std::string_view keys) override { calls.push_back("keys " + std::string(keys)); }
    [[nodiscard]] automation::Language language() const override { return spoken; }
    [[nodiscard]] double twipsPerPixel() const override { return 15; }

    std::vector<std::string> calls;
    automation::Language spoken = automation::Language::english;
    std::function<void()> whileModal;
    WindowHandle lastHandle = 100;
};

}  // namespace hx::forms
