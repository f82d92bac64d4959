// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <functional>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"
#include "lists/listed_variable.h"

namespace hx::studio {

/// Asks for a new variable.
class VariableDialog : public QDialog {
  public:
    /// The wording is lent; `isTaken` tells whether there is a variable of this name.
    VariableDialog(QWidget& window, const qt::Wording& wording, std::function<bool(const std::string& name)> isTaken);
    [[nodiscard]] lists::ListedVariable variable() const;

  private:
    void check();

    const qt::Wording& wording_;
    std::function<bool(const std::string& name)> isTaken_;
    QLineEdit name_, type_, comment_;
    qt::PlainLabel state_;
    QDialogButtonBox buttons_;
};

}  // namespace hx::studio
