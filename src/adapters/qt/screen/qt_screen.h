// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "adapters/qt/screen/form_view.h"
#include "adapters/qt/screen/qt_windows.h"
#include "adapters/qt/view_services.h"
#include "forms/screen.h"

namespace hx::qt {

/// Forms, message boxes and menus on a desktop. Needs a QApplication.
class QtScreen : public forms::Screen {
  public:
    /// Both are lent.
    QtScreen(QtWindows& windows, const Wording& wording);
    ~QtScreen() override;

    [[nodiscard]] forms::WindowHandle createWindow(forms::Form& form) override;
    void destroyWindow(forms::Form& form) override;
    void showModal(forms::Form& form, forms::WindowHandle owner) override;
    void bringToFront(forms::Form& form) override;
    forms::message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override;
    void popUp(forms::Bar& bar, forms::Band& band) override;
    bool chooseFont(forms::Font::Values& font) override;
    void beep() override;
    [[nodiscard]] forms::Pointer pointer() const override { return pointer_; }
    void setPointer(forms::Pointer pointer) noexcept override;
    void sendKeys(forms::Form& form, std::string_view keys) override;
    [[nodiscard]] automation::Language language() const override { return automation::languageOf(wording_.language()); }
    [[nodiscard]] double twipsPerPixel() const override { return views_.units.twipsPerPixel(); }

    /// Shows a dialog over `owner` while the work is done on it in place of the user; the form is hidden by the work.
    void showFor(forms::Form& form, forms::WindowHandle owner, const std::function<void()>& work);
    /// The project's variables, lent: what dialogs that are shown from now on offer.
    void setVariables(const VariableSource& variables) { views_.variables = &variables; }
    /// Lent, null for none: what grids that are shown from now on mark.
    void setMarks(const CellMarks* marks) { views_.marks = marks; }
    /// Gives to the models what is being typed in any window.
    void settle();
    [[nodiscard]] const Units& units() const noexcept { return views_.units; }
    [[nodiscard]] PopUpPlace& popUps() noexcept { return views_.popUps; }

  private:
    struct Shown {
        forms::WindowHandle handle;
        std::unique_ptr<FormView> view;
    };
    [[nodiscard]] FormView* viewOf(const forms::Form& form) const;

    QtWindows& windows_;
    const Wording& wording_;
    ViewServices views_;
    std::map<const forms::Form*, Shown> shown_;
    forms::Pointer pointer_ = forms::Pointer::standard;
};

}  // namespace hx::qt
