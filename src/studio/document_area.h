// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>

namespace hx::studio {

/// The area of the editor windows.
class DocumentArea : public QMdiArea {
  public:
    DocumentArea();

  protected:
    void changeEvent(QEvent* event) override;
};

}  // namespace hx::studio
