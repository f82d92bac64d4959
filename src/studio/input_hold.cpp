// SPDX-License-Identifier: MIT
#include "studio/input_hold.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMainWindow>

namespace hx::studio {

namespace {

bool isInput(const QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop: return event.spontaneous();  // what the macro itself sends is let through
        case QEvent::Shortcut: return true;
        default: return false;
    }
}

// Closing the main window asks the macro to stop; any other window stays until the macro has ended.
bool isClosing(const QObject& receiver, const QEvent& event) {
    return event.type() == QEvent::Close && event.spontaneous() &&
           dynamic_cast<const QMainWindow*>(&receiver) == nullptr;
}

bool isAnswering(const QWidget& window) {
    return window.isModal() || window.windowType() == Qt::Popup || window.windowType() == Qt::ToolTip;
}

}  // namespace

InputHold::InputHold(const QWidget& open, QKeyCombination stopKey, std::function<void()> stop)
    : open_(open), stopKey_(stopKey), stop_(std::move(stop)) {
    QCoreApplication::instance()->installEventFilter(this);
}

InputHold::~InputHold() { QCoreApplication::instance()->removeEventFilter(this); }

bool InputHold::eventFilter(QObject* receiver, QEvent* event) {
    const bool toWidget = receiver->isWidgetType();
    if ((toWidget || event->type() == QEvent::Shortcut) && isStopKey(*event)) {
        // Whoever asks whether it may be a shortcut is told that it is a key, which comes next.
        if (event->type() != QEvent::ShortcutOverride) stop_();
        event->accept();
        return true;
    }
    // A window's events go on to its widgets, where it shows whom they are for.
    if (!toWidget && event->type() != QEvent::Shortcut) return false;
    if (!isInput(*event) && !isClosing(*receiver, *event)) return false;
    if (isOpen(*receiver)) return false;
    event->ignore();
    return true;
}

bool InputHold::isStopKey(const QEvent& event) const {
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride: return static_cast<const QKeyEvent&>(event).keyCombination() == stopKey_;
        case QEvent::Shortcut: return static_cast<const QShortcutEvent&>(event).key() == QKeySequence(stopKey_);
        default: return false;
    }
}

// A shortcut can be that of an action, which is no widget; a modal dialog has shut out those of all other windows.
bool InputHold::isOpen(const QObject& receiver) const {
    if (QApplication::activePopupWidget() != nullptr) return true;
    const auto* widget = qobject_cast<const QWidget*>(&receiver);
    if (widget == nullptr) return QApplication::activeModalWidget() != nullptr;
    return widget == &open_ || open_.isAncestorOf(widget) || isAnswering(*widget->window());
}

}  // namespace hx::studio
