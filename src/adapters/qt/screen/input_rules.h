// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace hx::qt {

/// How the windows of the program take the user's input, those of the toolkit too. An event filter for the application:
/// the wheel turns a combo box only while that has the keyboard, else what lies around it; a dialog shows from the
/// start which control has the keyboard.
class InputRules : public QObject {
  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace hx::qt
