// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/combo_box.h"

#include <QKeyEvent>

namespace hx::qt {

namespace {

constexpr int shownEntries = 20;

}  // namespace

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) { setMaxVisibleItems(shownEntries); }

// Qt opens the list at a blank, and the letters behind it no longer belong to the same search.
void ComboBox::keyPressEvent(QKeyEvent* event) {
    const bool letter = !isEditable() && event->key() == Qt::Key_Space &&
                        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::NoModifier;
    if (!letter) return QComboBox::keyPressEvent(event);
    QKeyEvent blank(event->type(), Qt::Key_unknown, event->modifiers(), QStringLiteral(" "));
    QComboBox::keyPressEvent(&blank);
}

}  // namespace hx::qt
