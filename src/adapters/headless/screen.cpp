#include "adapters/headless/screen.h"

#include <algorithm>

#include "adapters/headless/key_strokes.h"
#include "adapters/headless/message_style.h"
#include "adapters/headless/pop_up_menu.h"
#include "automation/error.h"

namespace hx::headless {

namespace {

bool isOpen(const forms::Form& form) { return form.loaded() && form.visible(); }

}  // namespace

forms::WindowHandle Screen::createWindow(forms::Form& form) {
    const forms::WindowHandle handle = windows_.add(form);
    shown_[&form] = {handle, std::make_unique<FormWindow>(form, areaWidth, areaHeight)};
    return handle;
}

void Screen::destroyWindow(forms::Form& form) {
    const auto found = shown_.find(&form);
    if (found == shown_.end()) return;
    windows_.remove(found->second.handle);
    shown_.erase(found);
    std::erase(modals_, &form);
}

void Screen::showModal(forms::Form& form, forms::WindowHandle owner) {
    const auto keep = form.share();
    modals_.push_back(&form);
    const std::size_t at = record_.modals.size();
    record_.modals.push_back({.form = form.name(), .caption = form.caption(), .owner = owner});
    ModalForm entry = record_.modals.back();
    form.setVisible(true);
    try {
        runScript(form, entry);
    } catch (...) {
        std::erase(modals_, &form);
        form.hide();
        throw;
    }
    std::erase(modals_, &form);
    // A script may have taken the record's entries out meanwhile.
    if (at < record_.modals.size()) record_.modals[at] = entry;
}

void Screen::runScript(forms::Form& form, ModalForm& entry) {
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

void Screen::bringToFront(forms::Form& form) {
    record_.broughtToFront.push_back(form.name());
    if (form.windowState() == forms::WindowState::minimised) form.setWindowState(forms::WindowState::normal);
    const auto found = shown_.find(&form);
    if (found != shown_.end() && form.visible()) windows_.activate(found->second.handle, host::window::active);
}

forms::message::Answer Screen::messageBox(std::string_view text, std::int32_t style, std::string_view title) {
    Message box{.text = std::string(text),
                .title = std::string(title.empty() ? forms::message::defaultTitle : title),
                .style = style,
                .buttons = buttonsOf(style),
                .defaultButton = defaultButtonOf(style),
                .answer = defaultButtonOf(style)};
    if (const auto ask = script_.onMessage) {
        box.scripted = true;
        box.answer = ask(box);
    }
    record_.messages.push_back(box);
    if (std::ranges::find(box.buttons, box.answer) == box.buttons.end()) {
        throw automation::Error(automation::errBadIndex, "The message box \"" + box.text + "\" has no button \"" +
                                                             std::string(nameOf(box.answer)) + "\"");
    }
    return box.answer;
}

void Screen::popUp(forms::Bar& bar, forms::Band& band) {
    const auto keep = bar.share();
    PopUp entry;
    entry.band = band.name();
    entry.refused = !bar.openBand(band);
    std::shared_ptr<forms::Tool> tool;
    if (!entry.refused) {
        entry.entries = entriesOf(bar, band);
        if (const auto ask = script_.onPopUp) entry.chosen = ask(band);
        if (!entry.chosen.empty()) tool = shownTool(bar, band, entry.chosen);
    }
    record_.popUps.push_back(std::move(entry));
    if (tool) bar.click(*tool);
}

bool Screen::chooseFont(forms::Font::Values& font) {
    FontChoice choice{.before = font, .after = font};
    if (const auto ask = script_.onFont) choice.accepted = ask(choice.after);
    if (!choice.accepted) choice.after = choice.before;
    font = choice.after;
    record_.fonts.push_back(choice);
    return choice.accepted;
}

void Screen::setPointer(forms::Pointer pointer) noexcept {
    pointer_ = pointer;
    try {
        record_.pointers.push_back(pointer);
    } catch (const std::bad_alloc&) {
        // The record alone lacks it.
    }
}

void Screen::sendKeys(forms::Form& form, std::string_view keys) {
    const auto keep = form.share();
    record_.sentKeys.push_back({form.name(), std::string(keys)});
    for (const KeyStroke& stroke : keyStrokes(keys)) {
        if (form.loaded()) type(form, stroke);
    }
}

}  // namespace hx::headless
