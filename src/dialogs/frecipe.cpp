// SPDX-License-Identifier: MIT
#include "dialogs/frecipe.h"

#include "automation/member_rows.h"
#include "automation/text.h"
#include "resources/mdialogs.h"

namespace hx::dialogs {

using forms::CheckBox;
using forms::Frame;
using forms::Label;
using forms::OptionButton;
using forms::SystemColor;
using forms::TextBox;

namespace {

constexpr std::int16_t standardPage = 0, extendedPage = 1, optionsPage = 2;
constexpr std::array<std::int32_t, 3> tabTexts = {601, 602, 640};
constexpr std::string_view tabName = "tab";
constexpr const char* projectFolder = "<ProjectDir>";
constexpr std::size_t extensionLength = 2;

// The fields that the buttons of cmdChooseItem fill, by the button's index.
constexpr std::array<std::shared_ptr<TextBox> FRecipe::*, 7> variableFields = {
    &FRecipe::txtRecipeName, &FRecipe::txtDescription, &FRecipe::txtVarLoad,     &FRecipe::txtVarSave,
    &FRecipe::txtVarRead,    &FRecipe::txtVarWrite,    &FRecipe::txtVarSetValue,
};

}  // namespace

FRecipe::FRecipe(const host::Services& services, const resources::ResourceTable& texts, resources::Help& help)
    : Dialog("FRecipe", services, help, resources::help_context::recipeDialog),
      tab(add<forms::TabStrip>(std::string(tabName), tabTexts.size())),
      texts_(texts) {
    setTag("C621");
    addRow({.field = tab.get(), .grows = true});
    addStandardPage();
    addExtendedPage();
    addOptionsPage();
    addDialogButtons();
    tagDialogButtons();
    connectControls();
}

void FRecipe::addText(Frame& page, std::string_view name, std::string_view tag, std::shared_ptr<Label>& label,
                      std::shared_ptr<TextBox>& field, std::optional<std::size_t> chooser) {
    label = addTagged<Label>("lbl" + std::string(name), tag);
    field = add<TextBox>("txt" + std::string(name));
    forms::CommandButton* button = nullptr;
    if (chooser) {
        cmdChooseItem[*chooser] = addChooser("cmdChooseItem");
        button = cmdChooseItem[*chooser].get();
        button->setIndex(static_cast<std::int16_t>(*chooser));
    }
    addRow({.container = &page, .label = label.get(), .field = field.get(), .button = button});
}

void FRecipe::addCheck(forms::Control& container, const std::string& name, std::string_view tag,
                       std::shared_ptr<CheckBox>& box) {
    box = addTagged<CheckBox>(name, tag);
    addRow({.container = &container, .field = box.get()});
}

void FRecipe::addStandardPage() {
    Frame& page = tab->page(standardPage);
    addText(page, "Name", "C603", lblName, txtName);
    addText(page, "RecipeName", "C604", lblRecipeName, txtRecipeName, 0);
    addText(page, "Description", "C608", lblDescription, txtDescription, 1);
    lblFilePath = addTagged<Label>("lblFilePath", "C622");
    cboFilePath = add<forms::ComboBox>("cboFilePath");
    cmdChoosePath = addChooser("cmdChoosePath");
    addRow({.container = &page, .label = lblFilePath.get(), .field = cboFilePath.get(), .button = cmdChoosePath.get()});
    addText(page, "FileExtension", "C605", lblFileExtension, txtFileExtension);
    addText(page, "Comment", "C606", lblComment, txtComment);
    addCheck(page, "chkEnabled", "C615", chkEnabled);
}

void FRecipe::addExtendedPage() {
    Frame& page = tab->page(extendedPage);
    addText(page, "VarLoad", "C609", lblVarLoad, txtVarLoad, 2);
    addText(page, "VarSave", "C611", lblVarSave, txtVarSave, 3);
    addText(page, "VarRead", "C612", lblVarRead, txtVarRead, 4);
    addText(page, "VarWrite", "C613", lblVarWrite, txtVarWrite, 5);
    addAbsRel(page);
    addText(page, "StandardValue", "C633", lblStandardValue, txtStandardValue);
    addText(page, "VarSetValue", "C634", lblVarSetValue, txtVarSetValue, 6);
}

void FRecipe::addAbsRel(Frame& page) {
    lblRecipeAbsRel = addTagged<Label>("lblRecipeAbsRel", "C630");
    fraRecipeRelative = add<Frame>("fraRecipeRelative");
    addRow({.container = &page, .label = lblRecipeAbsRel.get(), .field = fraRecipeRelative.get()});
    constexpr std::array<std::string_view, 2> tags = {"C631", "C632"};
    for (const std::int16_t index : {absolute, relative}) {
        const auto at = static_cast<std::size_t>(index);
        optRecipeAbsrel[at] = addTagged<OptionButton>("optRecipeAbsrel", tags[at]);
        optRecipeAbsrel[at]->setIndex(index);
        addRow({.container = fraRecipeRelative.get(), .field = optRecipeAbsrel[at].get()});
    }
}

void FRecipe::addOptionsPage() {
    Frame& page = tab->page(optionsPage);
    fraTransferBehaviour = addTagged<Frame>("fraTransferBehaviour", "C641");
    addRow({.container = &page, .field = fraTransferBehaviour.get()});
    addCheck(*fraTransferBehaviour, "chkWriteThru", "C643", chkWriteThru);
    addCheck(*fraTransferBehaviour, "chkSaveThru", "C644", chkSaveThru);
    fraFileOptions = addTagged<Frame>("fraFileOptions", "C642");
    addRow({.container = &page, .field = fraFileOptions.get()});
    addCheck(*fraFileOptions, "chkSaveSubRecipes", "C635", chkSaveSubRecipes);
    addCheck(*fraFileOptions, "chkSaveChanges", "C623", chkSaveChanges);
    addCheck(*fraFileOptions, "chkCryptEngine", "C624", chkCryptEngine);
}

void FRecipe::connectControls() {
    on(loadEvent, &FRecipe::onLoad);
    on(tab->clickEvent, &FRecipe::onTab);
    on(txtFileExtension->changeEvent, &FRecipe::onFileExtension);
    on(cmdChoosePath->clickEvent, &FRecipe::onChoosePath);
    for (const std::int16_t index : {absolute, relative}) {
        hear(optRecipeAbsrel[static_cast<std::size_t>(index)]->clickEvent, [this, index] { onAbsRel(index); });
    }
    for (std::size_t index = 0; index < cmdChooseItem.size(); ++index) {
        hear(cmdChooseItem[index]->clickEvent, [this, index] { chooseItem(*(this->*variableFields[index])); });
    }
    hear(cmdOk->clickEvent, [this] { closeWith(false); });
    hear(cmdCancel->clickEvent, [this] { closeWith(true); });
    on(keyDownEvent, &FRecipe::onKey);
}

void FRecipe::onLoad() {
    setCancelled(true);
    for (std::size_t i = 0; i < tabTexts.size(); ++i) {
        tab->setTabCaption(static_cast<std::int16_t>(i), texts_.GetResource(tabTexts[i]));
    }
    resources::LocaliseDialog(*this, texts_);
    tab->setTab(standardPage);
    if (cboFilePath->listCount() == 0) cboFilePath->addItem(projectFolder);
    onTab();
}

void FRecipe::onTab() { resources::FixTabStops(*this, tabName); }

void FRecipe::onAbsRel(std::int16_t index) {
    const bool isRelative = index == relative;
    if (!isRelative) txtStandardValue->setText("0");
    else if (txtStandardValue->text() == "0") txtStandardValue->setText("1");
    if (!isRelative) txtVarSetValue->setText("");
    for (const auto& field : {txtStandardValue, txtVarSetValue}) {
        field->setEnabled(isRelative);
        field->setBackColor(isRelative ? SystemColor::window : SystemColor::buttonFace);
    }
}

void FRecipe::onFileExtension() {
    const std::string text = txtFileExtension->text();
    if (automation::characterCount(text) <= extensionLength) return;
    txtFileExtension->setText(std::string(automation::leftCharacters(text, extensionLength)));
    txtFileExtension->setSelStart(extensionLength);
    screen().beep();
}

void FRecipe::onChoosePath() { cboFilePath->setText(services().folders.choose(handle(), cboFilePath->text())); }

// Before the controls and also for a button with the keyboard: Enter is OK everywhere in this dialog.
void FRecipe::onKey(forms::KeyEvent& event) {
    if (event.code != forms::key::enter) return;
    event.swallow();
    cmdOk->click();
}

const automation::MemberTable& FRecipe::members() const {
    static const automation::MemberTable table{"FRecipe", {}, &dialogMembers()};
    return table;
}

}  // namespace hx::dialogs
