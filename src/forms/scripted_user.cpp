// SPDX-License-Identifier: MIT
#include "forms/scripted_user.h"

#include <algorithm>

#include "automation/error.h"
#include "forms/message_style.h"
#include "forms/pop_up_menu.h"

namespace hx::forms {

namespace {

bool isOpen(const Form& form) { return form.loaded() && form.visible(); }

}  // namespace

ShownMessage shownMessage(std::string_view text, std::int32_t style, std::string_view title) {
    return {.text = std::string(text),
            .title = std::string(title.empty() ? message::defaultTitle : title),
            .style = style,
            .buttons = message::buttonsOf(style),
            .defaultButton = message::defaultButtonOf(style),
            .answer = message::defaultButtonOf(style)};
}

void ScriptedUser::showModal(Form& form, WindowHandle owner) {
    const auto keep = form.share();
    modals_.push_back(&form);
    const std::size_t at = record_.modals.size();
    record_.modals.push_back({.form = form.name(), .caption = form.caption(), .owner = owner});
    ModalForm entry = record_.modals.back();
    form.setVisible(true);
    try {
        runScript(form, entry);
    } catch (...) {
        forget(form);
        form.hide();
        throw;
    }
    forget(form);
    // A script may have taken the record's entries out meanwhile.
    if (at < record_.modals.size()) record_.modals[at] = entry;
}

void ScriptedUser::runScript(Form& form, ModalForm& entry) {
    auto action = script_.onModal.find(form.name());
    if (action == script_.onModal.end()) action = script_.onModal.find(form.className());
    entry.scripted = action != script_.onModal.end();
    if (entry.scripted) {
        const auto run = action->second;  // it may replace itself
        run(form);
    }
    if (!isOpen(form)) return;
    entry.closedByFrame = true;
    form.closeByFrame();
    form.hide();  // a form that refuses to close would keep the caller waiting for ever
}

message::Answer ScriptedUser::messageBox(std::string_view text, std::int32_t style, std::string_view title) {
    ShownMessage box = shownMessage(text, style, title);
    if (const auto ask = script_.onMessage) {
        box.scripted = true;
        box.answer = ask(box);
    }
    record_.messages.push_back(box);
    if (std::ranges::find(box.buttons, box.answer) == box.buttons.end()) {
        throw automation::Error(automation::errBadIndex, "The message box \"" + box.text + "\" has no button \"" +
                                                             std::string(message::nameOf(box.answer)) + "\"");
    }
    return box.answer;
}

void ScriptedUser::popUp(Bar& bar, Band& band) {
    const auto keep = bar.share();
    PopUp entry;
    entry.band = band.name();
    entry.refused = !bar.openBand(band);
    std::shared_ptr<Tool> tool;
    if (!entry.refused) {
        entry.entries = entriesOf(bar, band);
        if (const auto ask = script_.onPopUp) entry.chosen = ask(band);
        if (!entry.chosen.empty()) tool = shownTool(bar, band, entry.chosen);
    }
    record_.popUps.push_back(std::move(entry));
    if (tool) bar.click(*tool);
}

bool ScriptedUser::chooseFont(Font::Values& font) {
    FontChoice choice{.before = font, .after = font};
    if (const auto ask = script_.onFont) choice.accepted = ask(choice.after);
    if (!choice.accepted) choice.after = choice.before;
    font = choice.after;
    record_.fonts.push_back(choice);
    return choice.accepted;
}

}  // namespace hx::forms
