// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QProxyStyle>

namespace hx::qt {

/// How the program looks: as its desktop does, or as the user has chosen for all programs of this toolkit. A list opens
/// below its field and no longer than it says itself, not as a menu over the whole screen.
class Style : public QProxyStyle {
  public:
    /// After the application.
    Style() : QProxyStyle(usualStyle()) {}
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
    }

  private:
    // The toolkit's own style for Windows stays light on a dark desktop.
    static QString usualStyle() {
        QString name = QApplication::style()->name();
        const bool chosen = !qEnvironmentVariableIsEmpty("QT_STYLE_OVERRIDE");
        return !chosen && name.startsWith(QStringLiteral("windows")) ? QStringLiteral("fusion") : name;
    }
};

}  // namespace hx::qt
