// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

#include "dialogs/dialog.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/option_button.h"
#include "forms/tab_strip.h"
#include "resources/resource_table.h"

namespace hx::dialogs {

/// The properties of one recipe. It does not touch the database: its controls are filled before it is shown and read
/// after it was confirmed. Cancelled is true from loading on; only OK makes it false.
class FRecipe : public Dialog {
  public:
    FRecipe(const host::Services& services, const resources::ResourceTable& texts, resources::Help& help);

    static constexpr std::int16_t absolute = 0, relative = 1;  ///< indexes of optRecipeAbsrel

    std::shared_ptr<forms::TabStrip> tab;

    // --- "Standard"
    std::shared_ptr<forms::Label> lblName;
    std::shared_ptr<forms::TextBox> txtName;
    std::shared_ptr<forms::Label> lblRecipeName;
    std::shared_ptr<forms::TextBox> txtRecipeName;
    std::shared_ptr<forms::Label> lblDescription;
    std::shared_ptr<forms::TextBox> txtDescription;
    std::shared_ptr<forms::Label> lblFilePath;
    std::shared_ptr<forms::ComboBox> cboFilePath;
    std::shared_ptr<forms::CommandButton> cmdChoosePath;
    std::shared_ptr<forms::Label> lblFileExtension;
    /// Holds two characters at most: what is more is cut, with a beep.
    std::shared_ptr<forms::TextBox> txtFileExtension;
    std::shared_ptr<forms::Label> lblComment;
    std::shared_ptr<forms::TextBox> txtComment;
    std::shared_ptr<forms::CheckBox> chkEnabled;

    // --- "Extended"
    std::shared_ptr<forms::Label> lblVarLoad;
    std::shared_ptr<forms::TextBox> txtVarLoad;
    std::shared_ptr<forms::Label> lblVarSave;
    std::shared_ptr<forms::TextBox> txtVarSave;
    std::shared_ptr<forms::Label> lblVarRead;
    std::shared_ptr<forms::TextBox> txtVarRead;
    std::shared_ptr<forms::Label> lblVarWrite;
    std::shared_ptr<forms::TextBox> txtVarWrite;
    std::shared_ptr<forms::Label> lblRecipeAbsRel;
    std::shared_ptr<forms::Frame> fraRecipeRelative;
    /// Absolute empties the two fields below and disables them. Neither is chosen until the dialog is filled: choose
    /// one after txtStandardValue has its text.
    std::array<std::shared_ptr<forms::OptionButton>, 2> optRecipeAbsrel;
    std::shared_ptr<forms::Label> lblStandardValue;
    std::shared_ptr<forms::TextBox> txtStandardValue;
    std::shared_ptr<forms::Label> lblVarSetValue;
    std::shared_ptr<forms::TextBox> txtVarSetValue;

    // --- "Options"
    std::shared_ptr<forms::Frame> fraTransferBehaviour;
    std::shared_ptr<forms::CheckBox> chkWriteThru, chkSaveThru;
    std::shared_ptr<forms::Frame> fraFileOptions;
    std::shared_ptr<forms::CheckBox> chkSaveSubRecipes, chkSaveChanges, chkCryptEngine;

    /// Beside the fields of variables: txtRecipeName, txtDescription, txtVarLoad, txtVarSave, txtVarRead, txtVarWrite,
    /// txtVarSetValue.
    std::array<std::shared_ptr<forms::CommandButton>, 7> cmdChooseItem;

    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void addText(forms::Frame& page, std::string_view name, std::string_view tag, std::shared_ptr<forms::Label>& label,
                 std::shared_ptr<forms::TextBox>& field, std::optional<std::size_t> chooser = {});
    void addCheck(forms::Control& container, const std::string& name, std::string_view tag,
                  std::shared_ptr<forms::CheckBox>& box);
    void addStandardPage();
    void addExtendedPage();
    void addAbsRel(forms::Frame& page);
    void addOptionsPage();
    void connectControls();
    void onLoad();
    void onTab();
    void onAbsRel(std::int16_t index);
    void onFileExtension();
    void onChoosePath();
    void onKey(forms::KeyEvent& event);

    const resources::ResourceTable& texts_;
};

}  // namespace hx::dialogs
