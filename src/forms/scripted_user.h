// SPDX-License-Identifier: MIT
#pragma once

#include "forms/form.h"
#include "forms/record.h"
#include "forms/script.h"

namespace hx::forms {

/// A message box as it is before somebody answers: with the answer of its default button.
[[nodiscard]] ShownMessage shownMessage(std::string_view text, std::int32_t style, std::string_view title);

/// Answers in place of a user what the script says, and keeps in the record what was shown: the part of a Screen that
/// waits for the user.
class ScriptedUser {
  public:
    /// Both are lent.
    ScriptedUser(const Script& script, Record& record) : script_(script), record_(record) {}

    /// Makes the form visible; it is hidden or unloaded afterwards.
    void showModal(Form& form, WindowHandle owner);
    message::Answer messageBox(std::string_view text, std::int32_t style, std::string_view title);
    void popUp(Bar& bar, Band& band);
    bool chooseFont(Font::Values& font);

    /// The form on top of those shown modally; null when there is none.
    [[nodiscard]] Form* modalForm() const noexcept { return modals_.empty() ? nullptr : modals_.back(); }
    /// The form has ended.
    void forget(const Form& form) { std::erase(modals_, &form); }

  private:
    void runScript(Form& form, ModalForm& entry);

    const Script& script_;
    Record& record_;
    std::vector<Form*> modals_;
};

}  // namespace hx::forms
