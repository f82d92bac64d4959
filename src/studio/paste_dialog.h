// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTreeWidget>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/wording.h"
#include "project/pasted_variables.h"
#include "studio/known_variables.h"

namespace hx::studio {

/// Shows what lines that are pasted into a recipe would add to it.
class PasteDialog : public QDialog {
  public:
    /// `known` is lent.
    PasteDialog(QWidget& window, std::vector<project::PastedVariable> lines, const KnownVariables& known,
                const qt::Wording& wording);

    /// The variables that shall be added.
    [[nodiscard]] std::vector<std::string> chosen() const;

  private:
    void build();
    void fill();
    [[nodiscard]] bool isUnknown(const project::PastedVariable& line) const;

    std::vector<project::PastedVariable> lines_;
    const KnownVariables& known_;
    const qt::Wording& wording_;
    QTreeWidget list_;
    QCheckBox unknown_;
    qt::PlainLabel state_;
    QPushButton* add_ = nullptr;
};

}  // namespace hx::studio
