// SPDX-License-Identifier: MIT
#include "macros/attended_screen.h"

#include <algorithm>

#include "automation/text.h"
#include "forms/bar.h"
#include "forms/command_button.h"
#include "forms/message_style.h"

namespace hx::macros {

namespace {

// By the button that Esc presses: to some dialogs their frame means yes.
void cancel(forms::Form& form) {
    if (forms::CommandButton* const button = form.buttonOf(forms::key::escape)) return button->click();
    form.closeByFrame();
}

}  // namespace

forms::Form* AttendedScreen::find(std::string_view className) const {
    const auto latest = std::find_if(forms_.rbegin(), forms_.rend(), [&](const forms::Form* form) {
        return automation::equalIgnoreCase(form->className(), className);
    });
    return latest == forms_.rend() ? nullptr : *latest;
}

bool AttendedScreen::dismissDialog() {
    if (dialogs_.empty()) return false;
    forms::Form& form = *dialogs_.back();
    const auto keep = form.share();
    cancel(form);
    form.hide();  // one that refuses to close would wait for ever
    return true;
}

forms::WindowHandle AttendedScreen::createWindow(forms::Form& form) {
    const forms::WindowHandle window = user_.createWindow(form);
    forms_.push_back(&form);
    return window;
}

void AttendedScreen::destroyWindow(forms::Form& form) {
    std::erase(forms_, &form);
    std::erase(dialogs_, &form);
    user_.destroyWindow(form);
}

bool AttendedScreen::isScripted(const forms::Form& form) const {
    const auto& functions = attendance_.script.onModal;
    return functions.contains(form.name()) || functions.contains(form.className());
}

void AttendedScreen::showModal(forms::Form& form, forms::WindowHandle owner) {
    if (attendance_.cancels()) {
        cancel(form);
        return form.hide();
    }
    if (attendance_.answers() && isScripted(form)) {
        const auto asking = attendance_.ask();
        return showFor_(form, owner, [&] { scripted_.showModal(form, owner); });
    }
    dialogs_.push_back(&form);
    try {
        user_.showModal(form, owner);
    } catch (...) {
        std::erase(dialogs_, &form);
        throw;
    }
    std::erase(dialogs_, &form);
}

forms::message::Answer AttendedScreen::messageBox(std::string_view text, std::int32_t style, std::string_view title) {
    if (!attendance_.answers()) return user_.messageBox(text, style, title);
    if (attendance_.script.onMessage && !attendance_.cancels()) {
        const auto asking = attendance_.ask();
        return scripted_.messageBox(text, style, title);
    }
    forms::ShownMessage box = forms::shownMessage(text, style, title);
    box.answer = forms::message::escapeAnswerOf(style);
    return askUser(std::move(box));
}

forms::message::Answer AttendedScreen::askUser(forms::ShownMessage box) {
    if (!attendance_.cancels()) box.answer = user_.messageBox(box.text, box.style, box.title);
    attendance_.record.messages.push_back(box);
    return box.answer;
}

void AttendedScreen::popUp(forms::Bar& bar, forms::Band& band) {
    if (!attendance_.answers()) return user_.popUp(bar, band);
    if (!attendance_.script.onPopUp && !attendance_.cancels()) return showUser(bar, band);
    const auto asking = attendance_.ask();
    scripted_.popUp(bar, band);
}

// A band that refuses to open is not shown.
void AttendedScreen::showUser(forms::Bar& bar, forms::Band& band) {
    const auto keep = bar.share();
    bool refused = false;
    {
        const forms::Subscription opened = bar.bandOpenEvent.subscribe(
            [&](forms::Band& opening, bool& cancel) { refused = refused || (&opening == &band && cancel); });
        user_.popUp(bar, band);
    }
    forms::PopUp entry;
    entry.band = band.name();
    entry.refused = refused;
    attendance_.record.popUps.push_back(std::move(entry));
}

bool AttendedScreen::chooseFont(forms::Font::Values& font) {
    if (!attendance_.answers()) return user_.chooseFont(font);
    if (attendance_.cancels()) return false;
    if (!attendance_.script.onFont) return user_.chooseFont(font);
    const auto asking = attendance_.ask();
    return scripted_.chooseFont(font);
}

void AttendedScreen::beep() {
    if (attendance_.answers()) ++attendance_.record.beeps;
    user_.beep();
}

}  // namespace hx::macros
