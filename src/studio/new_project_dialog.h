// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"

namespace hx::studio {

/// Asks for the name and the folder of a new project.
class NewProjectDialog : public QDialog {
  public:
    /// `folder` is offered.
    NewProjectDialog(QWidget& window, const QString& folder, const qt::Wording& wording);

    /// The file that was chosen.
    [[nodiscard]] QString path() const;

  private:
    void build();
    void chooseFolder();
    void check();
    [[nodiscard]] QString problem() const;

    const qt::Wording& wording_;
    QLineEdit name_, folder_;
    QPushButton choose_;
    qt::PlainLabel folderLabel_, state_;
    QPushButton* create_ = nullptr;
};

}  // namespace hx::studio
