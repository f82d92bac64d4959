// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace hx::qt {

/// How the program looks on every desktop. A list opens below its field and no longer than it says itself, not as a
/// menu over the whole screen.
class Style : public QProxyStyle {
  public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

}  // namespace hx::qt
