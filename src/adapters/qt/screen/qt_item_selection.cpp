// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/qt_item_selection.h"

#include "adapters/qt/choosers/item_dialog.h"
#include "adapters/qt/text.h"

namespace hx::qt {

std::string QtItemSelection::choose(forms::WindowHandle owner, const std::string& current) {
    ItemDialog dialog(wording_, source_.variables(), windows_.widget(owner));
    dialog.select(toQt(current));
    return dialog.exec() == QDialog::Accepted ? fromQt(dialog.selected()) : std::string();
}

}  // namespace hx::qt
