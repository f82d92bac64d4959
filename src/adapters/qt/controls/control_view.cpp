// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/control_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <array>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/fonts.h"
#include "adapters/qt/keys.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr std::array<std::string_view, 7> commonProperties = {"Font",        "Bounds",  "Visible", "Enabled",
                                                              "ToolTipText", "TabStop", "Tag"};

bool isBounds(std::string_view property) {
    return property == "Bounds" || property == "Left" || property == "Top" || property == "Width" ||
           property == "Height";
}

void silence(QObject& object) {
    object.blockSignals(true);
    for (QObject* child : object.children()) silence(*child);
}

}  // namespace

QString objectNameOf(const forms::Control& control) {
    const QString name = toQt(control.name());
    return control.index() ? QStringLiteral("%1(%2)").arg(name).arg(*control.index()) : name;
}

const Units& ControlView::units() const noexcept { return form_.units(); }

QWidget* ControlView::areaOf(const forms::Control& container) { return control_ == &container ? &widget() : nullptr; }

void ControlView::start() {
    widget().setObjectName(objectNameOf(*control_));
    for (const auto property : commonProperties) show(property);
    for (const auto property : ownProperties()) show(property);
    widget().setAccessibleName(accessibleName());
    changed_ = control_->changed.subscribe([this](std::string_view property) { apply(property); });
    focusRequested_ = control_->focusRequestEvent.subscribe([this] { widget().setFocus(Qt::OtherFocusReason); });
}

void ControlView::detach() {
    changed_.reset();
    focusRequested_.reset();
    control_ = nullptr;
    silence(widget());
}

void ControlView::watch(QWidget& part) { part.installEventFilter(this); }

QString ControlView::accessibleName() const {
    const auto& tip = control_->toolTipText();
    return tip.empty() ? objectNameOf(*control_) : toQt(tip);
}

void ControlView::layOut() {
    if (form_.laidOut()) return;
    const QRect rect(units().pixels(control_->left()), units().pixels(control_->top()),
                     units().pixels(control_->width()), units().pixels(control_->height()));
    if (rect.isEmpty()) {
        widget().move(rect.topLeft());
        widget().adjustSize();
    } else {
        widget().setGeometry(rect);
    }
}

void ControlView::show(std::string_view property) {
    if (isBounds(property)) layOut();
    else if (property == "Visible") widget().setVisible(control_->visible());
    else if (property == "Enabled") widget().setEnabled(control_->enabled());
    else if (property == "ToolTipText") widget().setToolTip(plainToolTip(toQt(control_->toolTipText())));
    else if (property == "Font") widget().setFont(shownFont(control_->font().values()));
    else if (property == "TabStop" && widget().focusPolicy() != Qt::NoFocus) {
        widget().setFocusPolicy(control_->tabStop() ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

// In a window that is not in front, where the keyboard would be: keys that are sent to it come there.
bool ControlView::hasKeyboard(const QWidget& part) {
    return part.hasFocus() || (!part.isActiveWindow() && part.window()->focusWidget() == &part);
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
    if (control_ == nullptr || !watched->isWidgetType()) return false;
    auto& part = static_cast<QWidget&>(*watched);
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            // A key that a part has ignored comes again to the widgets around it: reported once, where the focus is.
            return hasKeyboard(part) && form_.reportKey(static_cast<QKeyEvent&>(*event), *control_);
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick: {
            tellMouse(event->type(), mouseReport(static_cast<QMouseEvent&>(*event), part));
            return control_ == nullptr;  // the handler has ended the window
        }
        case QEvent::FocusIn:
            if (!control_->hasFocus()) control_->focusChanged(true);
            return false;
        case QEvent::FocusOut:
            // The keyboard may only go to another part of the control, or to a menu.
            if (!widget().isAncestorOf(QApplication::focusWidget()) &&
                static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
                control_->focusChanged(false);
            }
            return false;
        default: return false;
    }
}

forms::MouseEvent ControlView::mouseReport(const QMouseEvent& event, const QWidget& part) {
    return mouseEvent(event, part.mapTo(&widget(), event.position()), units());
}

void ControlView::tellMouse(QEvent::Type type, const forms::MouseEvent& mouse) {
    if (control_ == nullptr) return;
    const auto keep = control_->share();
    const auto keepForm = form_.model()->share();
    switch (type) {
        case QEvent::MouseButtonPress: control_->mouseDown(mouse); break;
        case QEvent::MouseMove: control_->mouseMove(mouse); break;
        case QEvent::MouseButtonRelease: control_->mouseUp(mouse); break;
        default: control_->doubleClick(); break;
    }
}

}  // namespace hx::qt
