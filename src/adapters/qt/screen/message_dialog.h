// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

#include "adapters/qt/wording.h"
#include "forms/screen.h"

namespace hx::qt {

/// A message box of a style (forms::message), with buttons in the studio's language.
class MessageDialog {
  public:
    MessageDialog(const Wording& wording, const QString& text, std::int32_t style, const QString& title);
    /// Waits for the user. Esc and the close box answer cancel, no or ok, whichever there is.
    [[nodiscard]] forms::message::Answer ask();

  private:
    void addButtons(const Wording& wording, std::int32_t style);
    QMessageBox box_;
};

}  // namespace hx::qt
