// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/dialog.h"
#include "forms/check_box.h"
#include "forms/label.h"

namespace hx::dialogs {

/// The options of the editor window. Cancelled (by name also `Cancel`) is true from loading on; only OK makes it
/// false. Its texts are German.
class FConfigEditor : public Dialog {
  public:
    FConfigEditor(const host::Services& services, resources::Help& help);

    std::shared_ptr<forms::Label> lblEditorFont;
    /// Shows the name of its own font, which is the choice.
    std::shared_ptr<forms::TextBox> txtEditorFont;
    std::shared_ptr<forms::CommandButton> cmdEditorFont;
    std::shared_ptr<forms::CheckBox> chkDelQuestion, chkShowStatusBar, chkSaveOnExit;

    /// Cancel and those of a dialog.
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void onChooseFont();
};

}  // namespace hx::dialogs
