// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "adapters/qt/wording.h"

namespace hx::studio {

/// Says what this program is: version and commit, what it is made of and under which licences.
class AboutDialog : public QDialog {
  public:
    AboutDialog(QWidget& window, const qt::Wording& wording);

    /// What somebody who reports a fault is asked for, a line each.
    [[nodiscard]] static QString details();
};

}  // namespace hx::studio
