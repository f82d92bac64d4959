// SPDX-License-Identifier: MIT
#include "dialogs/fconfig_editor.h"

#include "automation/member_rows.h"

namespace hx::dialogs {

using forms::CheckBox;
using forms::Font;

namespace {

constexpr std::int16_t normalWeight = 400, boldWeight = 700;

// The six properties of a font dialog.
Font::Values chosenBefore(const Font& font) {
    Font::Values values;
    values.weight = font.bold() ? boldWeight : normalWeight;
    values.italic = font.italic();
    values.name = font.name();
    values.size = font.size();
    values.strikethrough = font.strikethrough();
    values.underline = font.underline();
    return values;
}

void takeOver(const Font::Values& values, Font& font) {
    Font chosen;
    chosen.setValues(values);
    font.setBold(chosen.bold());
    font.setItalic(values.italic);
    font.setName(values.name);
    font.setSize(values.size);
    font.setStrikethrough(values.strikethrough);
    font.setUnderline(values.underline);
}

}  // namespace

FConfigEditor::FConfigEditor(const host::Services& services, resources::Help& help)
    : Dialog("FConfigEditor", services, help, resources::help_context::configurationDialog),
      lblEditorFont(addTagged<forms::Label>("lblEditorFont", "C701")),
      txtEditorFont(add<forms::TextBox>("txtEditorFont")),
      cmdEditorFont(addChooser("cmdEditorFont")),
      chkDelQuestion(addTagged<CheckBox>("chkDelQuestion", "C702")),
      chkShowStatusBar(addTagged<CheckBox>("chkShowStatusBar", "C703")),
      chkSaveOnExit(addTagged<CheckBox>("chkSaveOnExit", "C704")) {
    setTag("C700");
    setCaption("Optionen");
    lblEditorFont->setCaption("&Editorfont");
    chkDelQuestion->setCaption("Abfrage vor &Löschen");
    chkShowStatusBar->setCaption("&Statuszeile anzeigen");
    chkSaveOnExit->setCaption("Einstellungen &automatisch beim Verlassen speichern");
    txtEditorFont->setLocked(true);
    addRow({.label = lblEditorFont.get(), .field = txtEditorFont.get(), .button = cmdEditorFont.get()});
    for (const auto& box : {chkDelQuestion, chkShowStatusBar, chkSaveOnExit}) addRow({.field = box.get()});
    addDialogButtons();
    captionDialogButtons();
    hear(loadEvent, [this] { setCancelled(true); });
    on(cmdEditorFont->clickEvent, &FConfigEditor::onChooseFont);
    hear(cmdOk->clickEvent, [this] { closeWith(false); });
    hear(cmdCancel->clickEvent, [this] { closeWith(true); });
}

void FConfigEditor::onChooseFont() {
    Font& font = txtEditorFont->font();
    Font::Values values = chosenBefore(font);
    screen().chooseFont(values);  // cancelled, the values are as they were
    takeOver(values, font);
    txtEditorFont->setText(font.name());
}

const automation::MemberTable& FConfigEditor::members() const {
    using Self = FConfigEditor;
    static constexpr automation::Member rows[] = {
        automation::property<&Self::cancelled, &Self::setCancelled>("Cancel", "Whether it was left without OK"),
    };
    static const automation::MemberTable table{"FConfigEditor", rows, &dialogMembers()};
    return table;
}

}  // namespace hx::dialogs
