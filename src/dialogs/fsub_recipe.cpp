// SPDX-License-Identifier: MIT
#include "dialogs/fsub_recipe.h"

#include "automation/member_rows.h"
#include "automation/text.h"
#include "resources/mdialogs.h"
#include "resources/text_ids.h"

namespace hx::dialogs {

namespace text = resources::text_id;

FSubRecipe::FSubRecipe(const host::Services& services, const resources::ResourceTable& texts, resources::Help& help)
    : Dialog("FSubRecipe", services, help, resources::help_context::subRecipeDialog),
      fraChooseRecipe(add<forms::Frame>("fraChooseRecipe")),
      lblChooseRecipe(addTagged<forms::Label>("lblChooseRecipe", "C501")),
      cmbChooseRecipe(add<forms::ComboBox>("cmbChooseRecipe", forms::ComboBox::Style::dropDownList)),
      Label1(addTagged<forms::Label>("Label1", "C502")),
      txtVarRecipe(add<forms::TextBox>("txtVarRecipe")),
      cmdChooseItem(addChooser("cmdChooseItem")),
      texts_(texts) {
    setTag("C500");
    forms::Control* const frame = fraChooseRecipe.get();
    addRow({.field = frame});
    addRow({.container = frame, .label = lblChooseRecipe.get(), .field = cmbChooseRecipe.get()});
    addRow({.container = frame, .label = Label1.get(), .field = txtVarRecipe.get(), .button = cmdChooseItem.get()});
    addDialogButtons();
    tagDialogButtons();
    on(loadEvent, &FSubRecipe::onLoad);
    hear(cmdChooseItem->clickEvent, [this] { chooseItem(*txtVarRecipe); });
    on(cmdOk->clickEvent, &FSubRecipe::onOk);
    hear(cmdCancel->clickEvent, [this] { closeWith(true); });
}

void FSubRecipe::onLoad() {
    resources::LocaliseDialog(*this, texts_);
    setCancelled(true);
}

void FSubRecipe::onOk() {
    if (cmbChooseRecipe->listIndex() < 0) return refuse(text::recipeMissing, *cmbChooseRecipe);
    const bool hasVariable = !automation::trim(txtVarRecipe->text()).empty();
    if (!hasVariable && !parentSavesSubRecipes_) return refuse(text::variableMissing, *txtVarRecipe);
    closeWith(false);
}

void FSubRecipe::refuse(std::int32_t text, forms::Control& field) {
    screen().messageBox(texts_.GetResource(text), forms::message::ok, forms::message::defaultTitle);
    field.setFocus();
}

const automation::MemberTable& FSubRecipe::members() const {
    static constexpr automation::Member rows[] = {
        automation::property<&FSubRecipe::parentSavesSubRecipes, &FSubRecipe::setParentSavesSubRecipes>(
            "ParentSavesSubRecipes", "Whether the receiving recipe saves its sub-recipes' values itself"),
    };
    static const automation::MemberTable table{"FSubRecipe", rows, &dialogMembers()};
    return table;
}

}  // namespace hx::dialogs
