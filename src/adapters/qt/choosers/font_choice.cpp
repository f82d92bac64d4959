// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/font_choice.h"

#include <QFontDialog>
#include <QFontInfo>

#include "adapters/qt/dialog_buttons.h"
#include "adapters/qt/fonts.h"

namespace hx::qt {

bool chooseFont(forms::Font::Values& font, const Wording& wording, QWidget* owner) {
    const QFontInfo shown(toQt(font));
    QFont offered = toQt(font);
    offered.setFamily(shown.family());
    QFontDialog dialog(offered, owner);
    dialog.setObjectName(QStringLiteral("fontDialog"));
    dialog.setWindowTitle(wording.translate("dialogs", "Select Font"));
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) dressButtons(*buttons, wording);
    const QFont before = dialog.currentFont();
    if (dialog.exec() != QDialog::Accepted) return false;
    const QFont after = dialog.selectedFont();
    const forms::Font::Values chosen = fromQt(after, font);
    if (after.family() != before.family()) font.name = chosen.name;
    if (after.pointSizeF() != before.pointSizeF()) font.size = chosen.size;
    if (after.weight() != before.weight()) font.weight = chosen.weight;
    if (after.italic() != before.italic()) font.italic = chosen.italic;
    font.strikethrough = chosen.strikethrough;
    font.underline = chosen.underline;
    return true;
}

}  // namespace hx::qt
