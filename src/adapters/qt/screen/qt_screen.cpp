// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/qt_screen.h"

#include <QApplication>
#include <QScreen>

#include "adapters/qt/choosers/font_choice.h"
#include "adapters/qt/controls/band_menu.h"
#include "adapters/qt/screen/message_dialog.h"
#include "adapters/qt/text.h"

namespace hx::qt {

QtScreen::QtScreen(QtWindows& windows, const Wording& wording)
    : windows_(windows),
      wording_(wording),
      views_{.units = Units::ofDpi(QGuiApplication::primaryScreen()->logicalDotsPerInchX()), .wording = wording} {}

QtScreen::~QtScreen() {
    for (auto& [form, shown] : shown_) shown.view->detach();
    setPointer(forms::Pointer::standard);
}

FormView* QtScreen::viewOf(const forms::Form& form) const {
    const auto found = shown_.find(&form);
    return found == shown_.end() ? nullptr : found->second.view.get();
}

void QtScreen::settle() {
    for (const auto& [form, shown] : shown_) shown.view->settle();
}

forms::WindowHandle QtScreen::createWindow(forms::Form& form) {
    auto view = std::make_unique<FormView>(form, views_);
    const auto handle = windows_.add(*view);
    shown_[&form] = {handle, std::move(view)};
    return handle;
}

void QtScreen::destroyWindow(forms::Form& form) {
    const auto found = shown_.find(&form);
    if (found == shown_.end()) return;
    windows_.remove(found->second.handle);
    found->second.view->detach();
    // The window may end inside an event of its own: it is deleted when that has run.
    found->second.view.release()->deleteLater();
    shown_.erase(found);
}

void QtScreen::showModal(forms::Form& form, forms::WindowHandle owner) {
    if (FormView* view = viewOf(form)) view->runModal(windows_.widget(owner));
}

void QtScreen::showFor(forms::Form& form, forms::WindowHandle owner, const std::function<void()>& work) {
    if (FormView* view = viewOf(form)) view->showFor(windows_.widget(owner), work);
    else work();
}

void QtScreen::bringToFront(forms::Form& form) {
    if (FormView* view = viewOf(form)) view->bringToFront();
}

forms::message::Answer QtScreen::messageBox(std::string_view text, std::int32_t style, std::string_view title) {
    MessageDialog dialog(wording_, toQt(text), style, toQt(title));
    return dialog.ask();
}

void QtScreen::popUp(forms::Bar& bar, forms::Band& band) {
    const auto keep = bar.share();
    if (!bar.openBand(band)) return;
    std::shared_ptr<forms::Tool> chosen;
    BandMenu menu(bar, [&](forms::Tool& tool) {
        if (tool.enabled()) chosen = std::static_pointer_cast<forms::Tool>(tool.share());
        else bar.click(tool);
    });
    menu.setObjectName(toQt(band.name()));
    menu.fill(bar.popUpTools(band));
    menu.exec(views_.popUps.point());
    if (chosen) bar.click(*chosen);
}

bool QtScreen::chooseFont(forms::Font::Values& font) {
    return qt::chooseFont(font, wording_, QApplication::activeWindow());
}

void QtScreen::beep() { QApplication::beep(); }

void QtScreen::setPointer(forms::Pointer pointer) noexcept {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    if (pointer == forms::Pointer::hourglass) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else QGuiApplication::restoreOverrideCursor();
}

void QtScreen::sendKeys(forms::Form& form, std::string_view keys) {
    if (FormView* view = viewOf(form)) view->sendKeys(keys);
}

}  // namespace hx::qt
