// SPDX-License-Identifier: MIT
#include "dialogs/mconfigeditor.h"

#include "automation/convert.h"
#include "resources/mdialogs.h"

namespace hx::dialogs {

using automation::Variant;
using forms::CheckBox;
using forms::CheckState;

namespace {

namespace entry {
constexpr const char* saveOnExit = "SaveOnExit";
constexpr const char* requestOnDelete = "RequestOnDelete";
}  // namespace entry

// German in both languages.
constexpr std::string_view initFailed = "Initialisierung Konfigurationsdialog fehlgegangen";
constexpr std::string_view writeBackFailed = "Zurückschreiben von Konfigurationsdialog fehlgegangen";

template <class Action>
bool succeeds(const Action& action) {
    try {
        action();
        return true;
    } catch (const std::exception&) {
        return false;  // the caller names what has failed, in one text for every cause
    }
}

void tickWhen(bool condition, CheckBox& box) {
    if (condition) box.setValue(CheckState::checked);
}

void tickFrom(const settings::CInit& inits, const char* name, CheckBox& box) {
    tickWhen(inits.ReadAValueFromCInits(name, Variant(true)) == Variant(true), box);
}

bool isSet(const CheckBox& box) { return box.value() != CheckState::unchecked; }

}  // namespace

bool asksBeforeDeleting(const settings::CInit& inits) {
    const Variant option = inits.ReadAValueFromCInits(entry::requestOnDelete, Variant(true));
    return option.isString() || automation::toBoolean(option);
}

std::int32_t ShowConfigEditor(ConfigurableWindow& window, const host::Services& services, resources::Help& help) {
    const auto dialog = std::make_shared<FConfigEditor>(services, help);
    if (!InitConfigEditor(window, *dialog)) {
        window.tell(initFailed);
        return 0;
    }
    dialog->showModal(window.editorWindow().handle());
    if (!dialog->cancelled() && !WriteBackConfigEditor(window, *dialog)) window.tell(writeBackFailed);
    return 0;
}

bool InitConfigEditor(ConfigurableWindow& window, FConfigEditor& dialog) {
    return succeeds([&] {
        dialog.setOwner(window.editorWindow().share());
        forms::Font& font = dialog.txtEditorFont->font();
        resources::CopyFont(window.editorWindow().font(), font);
        dialog.txtEditorFont->setText(font.name());
        tickFrom(window.inits(), entry::saveOnExit, *dialog.chkSaveOnExit);
        tickWhen(asksBeforeDeleting(window.inits()), *dialog.chkDelQuestion);
        tickWhen(window.statusBar().visible(), *dialog.chkShowStatusBar);
    });
}

bool WriteBackConfigEditor(ConfigurableWindow& window, const FConfigEditor& dialog) {
    return succeeds([&] {
        for (forms::Font* font : {&window.editorWindow().font(), &window.memberGrid().font()}) {
            resources::CopyFont(dialog.txtEditorFont->font(), *font);
        }
        settings::CInit& inits = window.inits();
        inits.GetInitFromControl(window.memberGrid().name());
        inits.WriteAValueToCInits(entry::saveOnExit, Variant(isSet(*dialog.chkSaveOnExit)));
        inits.WriteAValueToCInits(entry::requestOnDelete, Variant(isSet(*dialog.chkDelQuestion)));
        window.statusBar().setVisible(isSet(*dialog.chkShowStatusBar));
        inits.GetInitFromControl(window.statusBar().name());
        window.abr_Resize();
    });
}

}  // namespace hx::dialogs
