// SPDX-License-Identifier: MIT
#include "dialogs/dialog.h"

#include "automation/member_rows.h"
#include "automation/text.h"

namespace hx::dialogs {

Dialog::Dialog(std::string name, const host::Services& services, resources::Help& help, std::int32_t helpContext)
    : Form(std::move(name), services.screen), services_(services), help_(help) {
    setHelpContextId(helpContext);
    setKeyPreview(true);
    on(keyDownEvent, &Dialog::onKeyDown);
}

std::shared_ptr<forms::CommandButton> Dialog::addChooser(std::string name) {
    auto button = add<forms::CommandButton>(std::move(name));
    button->setCaption("...");
    return button;
}

void Dialog::addDialogButtons() {
    cmdOk = add<forms::CommandButton>("cmdOk");
    cmdCancel = add<forms::CommandButton>("cmdCancel");
    cmdHelp = add<forms::CommandButton>("cmdHelp");
    cmdOk->setDefault(true);
    cmdCancel->setCancel(true);
    addButtons({cmdOk.get(), cmdCancel.get()}, cmdHelp.get());
    on(cmdHelp->clickEvent, &Dialog::sendHelpKey);
}

void Dialog::tagDialogButtons() {
    cmdOk->setTag("C10");
    cmdCancel->setTag("C11");
    cmdHelp->setTag("C12");
}

void Dialog::captionDialogButtons() {
    cmdOk->setCaption("OK");
    cmdCancel->setCaption("Abbrechen");
    cmdHelp->setCaption("&Hilfe");
}

void Dialog::onKeyDown(forms::KeyEvent& event) {
    if (event.code != forms::key::f1 || event.shift != forms::shift::none) return;
    event.swallow();
    help_.ShowHelp(handle(), helpContextId());
}

void Dialog::chooseItem(forms::TextBox& field) {
    const std::string chosen = services_.items.choose(handle(), field.text());
    const std::string_view name = automation::trim(chosen);
    if (!name.empty()) field.setText(std::string(name));
}

void Dialog::sendHelpKey() { screen().sendKeys(*this, "{F1}"); }

void Dialog::closeWith(bool cancelled) {
    if (!cancelled && accept_ && !accept_()) return;
    cancelled_ = cancelled;
    hide();
}

void Dialog::guard(const std::function<void()>& action) {
    const auto keep = share();
    try {
        action();
    } catch (const std::exception&) {
        screen().messageBox(automation::caughtError().message(screen().language()), forms::message::ok, name());
    }
}

namespace {

void assignOwner(Dialog& dialog, const automation::ObjectRef& owner) { dialog.setOwner(owner); }

}  // namespace

const automation::MemberTable& Dialog::dialogMembers() {
    using automation::property;
    static constexpr automation::Member rows[] = {
        property<&Dialog::cancelled, &Dialog::setCancelled>("Cancelled", "Whether the dialog was left without OK"),
        property<&Dialog::owner, &assignOwner>("Owner", "The window that shows the dialog"),
    };
    static const automation::MemberTable table{"Dialog", rows, &formMembers()};
    return table;
}

}  // namespace hx::dialogs
