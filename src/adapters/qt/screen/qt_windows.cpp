// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/qt_windows.h"

#include <QApplication>
#include <QMenuBar>
#include <memory>

#include "adapters/qt/screen/mdi_edit.h"
#include "automation/error.h"

namespace hx::qt {

namespace {

constexpr std::uint32_t firstMessage = 0xC000;  // where the numbers of registered messages begin

host::window::Rect toRect(const QPoint& place, const QSize& size) {
    return {place.x(), place.y(), place.x() + size.width(), place.y() + size.height()};
}

}  // namespace

QtWindows::QtWindows() {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { keyboardMoved(now); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &QtWindows::studioChanged);
}

forms::WindowHandle QtWindows::add(FormView& view) { return insert({&view.widget(), &view}); }

forms::WindowHandle QtWindows::add(QMdiArea& area) {
    connect(&area, &QMdiArea::subWindowActivated, this, [this, &area] {
        // The area forgets its active window while the studio is not in front, but not the current one.
        documentChanged(documentAround(area.currentSubWindow()));
    });
    return insert({&area, nullptr});
}

forms::WindowHandle QtWindows::insert(Window window) {
    lastHandle_ += 2;
    windows_.emplace(lastHandle_, window);
    return lastHandle_;
}

void QtWindows::remove(forms::WindowHandle handle) {
    if (active_ == handle) active_ = 0;
    if (document_ == handle) document_ = 0;
    windows_.erase(handle);
}

QWidget* QtWindows::widget(forms::WindowHandle handle) const {
    const auto found = windows_.find(handle);
    return found == windows_.end() ? nullptr : found->second.widget;
}

const QtWindows::Window& QtWindows::at(forms::WindowHandle handle) const {
    const auto found = windows_.find(handle);
    if (found == windows_.end()) {
        throw automation::Error(errBadHandle, "Invalid window handle " + std::to_string(handle));
    }
    return found->second;
}

QtWindows::Window& QtWindows::at(forms::WindowHandle handle) {
    return const_cast<Window&>(std::as_const(*this).at(handle));
}

std::uint32_t QtWindows::style(forms::WindowHandle handle) const { return at(handle).style; }

void QtWindows::setStyle(forms::WindowHandle handle, std::uint32_t style) { at(handle).style = style; }

void QtWindows::setParent(forms::WindowHandle handle, forms::WindowHandle parent) {
    Window& window = at(handle);
    if (window.view == nullptr) throw automation::Error(errBadHandle, "The document area stays where it is");
    window.view->takeOut();
    if (parent == 0 || parent == -1) return;
    auto* area = dynamic_cast<QMdiArea*>(at(parent).widget);
    if (area == nullptr) throw automation::Error(errBadHandle, "The window takes no documents");
    window.view->embedIn(*area);
}

std::uint32_t QtWindows::registerMessage(std::string_view name) {
    if (const auto found = messages_.find(name); found != messages_.end()) return found->second;
    const auto number = firstMessage + static_cast<std::uint32_t>(messages_.size());
    messages_.emplace(name, number);
    return number;
}

host::window::ProcedureAddress QtWindows::procedure(forms::WindowHandle handle) const { return at(handle).procedure; }

host::window::ProcedureAddress QtWindows::install(forms::WindowHandle handle, host::window::Procedure procedure) {
    Window& window = at(handle);
    const auto previous = window.procedure;
    window.procedure = ++lastProcedure_;
    procedures_.emplace(lastProcedure_, std::move(procedure));
    return previous;
}

void QtWindows::restore(forms::WindowHandle handle, host::window::ProcedureAddress address) {
    at(handle).procedure = address;
}

std::int32_t QtWindows::call(host::window::ProcedureAddress address, forms::WindowHandle handle, std::uint32_t message,
                             std::uint32_t wParam, std::int32_t lParam) {
    const auto found = procedures_.find(address);
    if (found == procedures_.end()) return 0;
    const auto procedure = found->second;  // it may be taken away while it runs
    return procedure(handle, message, wParam, lParam);
}

host::window::Rect QtWindows::rect(forms::WindowHandle handle) const {
    const Window& window = at(handle);
    if (const auto* area = dynamic_cast<const QMdiArea*>(window.widget)) {
        return toRect(area->viewport()->mapToGlobal(QPoint()), area->viewport()->size());
    }
    const QWidget& frame = window.view->frame();
    if (frame.isWindow()) return toRect(frame.frameGeometry().topLeft(), frame.frameGeometry().size());
    return toRect(frame.mapToGlobal(QPoint()), frame.size());
}

automation::ObjectRef QtWindows::embeddingObject(forms::WindowHandle handle) const {
    FormView* view = at(handle).view;
    if (view == nullptr || view->documentWindow() == nullptr) return nullptr;
    return std::make_shared<MdiEdit>(*view->documentWindow());
}

forms::WindowHandle QtWindows::documentAround(const QWidget* widget) const {
    for (const auto& [handle, window] : windows_) {
        const QMdiSubWindow* document = window.view != nullptr ? window.view->documentWindow() : nullptr;
        if (document != nullptr && (document == widget || document->isAncestorOf(widget))) return handle;
    }
    return 0;
}

void QtWindows::documentChanged(forms::WindowHandle handle) {
    if (std::exchange(document_, handle) != handle) activated(handle);
}

// Behind a dialog nothing changes: what it was opened for goes on with what was read before.
bool QtWindows::ignoresUser() const { return quiet_ || QApplication::activeModalWidget() != nullptr; }

// A dialog or a menu only borrows the keyboard: what it belongs to goes on afterwards where it was.
void QtWindows::keyboardMoved(const QWidget* widget) {
    if (widget == nullptr || ignoresUser()) return;
    const Qt::WindowType type = widget->window()->windowType();
    const bool borrowed = type == Qt::Dialog || type == Qt::Popup || qobject_cast<const QMenuBar*>(widget) != nullptr;
    if (!borrowed) activated(documentAround(widget));
}

void QtWindows::studioChanged(Qt::ApplicationState state) {
    if (ignoresUser()) return;
    if (state != Qt::ApplicationActive) return activated(0);
    // Once it is known where the keyboard comes back to.
    QMetaObject::invokeMethod(this, &QtWindows::cameBack, Qt::QueuedConnection);
}

// The studio stands for its document, also where the keyboard is in another part of it.
void QtWindows::cameBack() {
    if (active_ != 0 || ignoresUser()) return;
    activated(document_);
    keyboardMoved(QApplication::focusWidget());
}

void QtWindows::activated(forms::WindowHandle handle) {
    if (handle == active_) return;
    const auto before = active_;
    active_ = handle;
    send(before, host::window::inactive);
    const bool clicked = QApplication::mouseButtons() != Qt::NoButton;
    send(handle, clicked ? host::window::clickActive : host::window::active);
}

void QtWindows::send(forms::WindowHandle handle, std::uint32_t state) {
    const auto found = windows_.find(handle);
    if (found == windows_.end()) return;
    call(found->second.procedure, handle, host::window::activateMessage, state, 0);
}

}  // namespace hx::qt
