// SPDX-License-Identifier: MIT
#pragma once

#include "dialogs/dialog.h"
#include "forms/combo_box.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "resources/resource_table.h"

namespace hx::dialogs {

/// The choice of a recipe to include and of the variable that gives its file name. Cancelled is true from loading on;
/// only an OK that passes the checks makes it false.
class FSubRecipe : public Dialog {
  public:
    FSubRecipe(const host::Services& services, const resources::ResourceTable& texts, resources::Help& help);

    std::shared_ptr<forms::Frame> fraChooseRecipe;
    std::shared_ptr<forms::Label> lblChooseRecipe;
    /// A drop-down list; the item data of an entry is the recipe's ID.
    std::shared_ptr<forms::ComboBox> cmbChooseRecipe;
    std::shared_ptr<forms::Label> Label1;
    std::shared_ptr<forms::TextBox> txtVarRecipe;
    std::shared_ptr<forms::CommandButton> cmdChooseItem;

    /// Whether the recipe that receives the member saves its sub-recipes' values in its own file: no variable for the
    /// file name is needed then.
    [[nodiscard]] bool parentSavesSubRecipes() const noexcept { return parentSavesSubRecipes_; }
    void setParentSavesSubRecipes(bool saves) noexcept { parentSavesSubRecipes_ = saves; }

    /// ParentSavesSubRecipes and those of a dialog.
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    void onLoad();
    void onOk();
    void refuse(std::int32_t text, forms::Control& field);

    const resources::ResourceTable& texts_;
    bool parentSavesSubRecipes_ = false;
};

}  // namespace hx::dialogs
