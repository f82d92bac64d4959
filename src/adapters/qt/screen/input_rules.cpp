// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/input_rules.h"

#include <QComboBox>
#include <QEvent>

namespace hx::qt {

bool InputRules::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        // Else it would show only after the first tabulator key.
        if (auto* widget = qobject_cast<QWidget*>(watched); widget != nullptr && widget->windowType() == Qt::Dialog) {
            widget->setAttribute(Qt::WA_KeyboardFocusChange);
        }
        // Else the wheel itself would give it the keyboard.
        if (auto* box = qobject_cast<QComboBox*>(watched); box != nullptr && box->focusPolicy() == Qt::WheelFocus) {
            box->setFocusPolicy(Qt::StrongFocus);
        }
    }
    if (event->type() != QEvent::Wheel) return false;
    const auto* box = qobject_cast<QComboBox*>(watched);
    if (box == nullptr || box->hasFocus()) return false;
    event->ignore();
    return true;
}

}  // namespace hx::qt
