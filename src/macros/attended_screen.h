// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "forms/relaying_screen.h"
#include "forms/scripted_user.h"
#include "macros/attendance.h"

namespace hx::macros {

/// The user's screen, where a macro that runs may answer instead of him.
class AttendedScreen : public forms::RelayingScreen {
  public:
    /// Shows a dialog, does the work on it in place of the user, and hides it.
    using ShowFor = std::function<void(forms::Form&, forms::WindowHandle owner, const std::function<void()>& work)>;

    /// Screen and attendance are lent.
    AttendedScreen(forms::Screen& user, Attendance& attendance, ShowFor showFor)
        : RelayingScreen(user), user_(user), attendance_(attendance), showFor_(std::move(showFor)) {}

    /// The latest of the loaded forms of this class; null when there is none.
    [[nodiscard]] forms::Form* find(std::string_view className) const;
    /// Closes the dialog on top, which the user was asked by, as he does who cancels. False when there is none.
    bool dismissDialog();

    [[nodiscard]] forms::WindowHandle createWindow(forms::Form& form) override;
    void destroyWindow(forms::Form& form) override;
    void showModal(forms::Form& form, forms::WindowHandle owner) override;
    forms::message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title) override;
    void popUp(forms::Bar& bar, forms::Band& band) override;
    bool chooseFont(forms::Font::Values& font) override;
    void beep() override;

  private:
    [[nodiscard]] bool isScripted(const forms::Form& form) const;
    forms::message::Answer askUser(forms::ShownMessage box);
    void showUser(forms::Bar& bar, forms::Band& band);

    forms::Screen& user_;
    Attendance& attendance_;
    ShowFor showFor_;
    /// Answers by the macro's functions, and cancels where there is none.
    forms::ScriptedUser scripted_{attendance_.script, attendance_.record};
    std::vector<forms::Form*> forms_;
    std::vector<forms::Form*> dialogs_;  ///< those that wait for the user
};

}  // namespace hx::macros
