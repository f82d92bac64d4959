// SPDX-License-Identifier: MIT
#include "adapters/qt/dialog_buttons.h"

#include <QPushButton>

namespace hx::qt {

void dressButtons(QDialogButtonBox& buttons, const Wording& wording) {
    for (QAbstractButton* button : buttons.buttons()) {
        button->setIcon(QIcon());
        const auto kind = buttons.standardButton(button);
        if (kind == QDialogButtonBox::Ok) button->setText(wording.translate("dialogs", "OK"));
        else if (kind == QDialogButtonBox::Cancel) button->setText(wording.translate("dialogs", "Cancel"));
    }
}

}  // namespace hx::qt
