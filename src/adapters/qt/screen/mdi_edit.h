// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiSubWindow>
#include <QPointer>

#include "automation/dispatch.h"

namespace hx::qt {

/// The studio's object around an editor window: class "MDIEdit", method Show.
class MdiEdit : public automation::Dispatch {
  public:
    explicit MdiEdit(QMdiSubWindow& document) : document_(&document) {}
    void show();
    [[nodiscard]] const automation::MemberTable& members() const override;

  private:
    QPointer<QMdiSubWindow> document_;
};

}  // namespace hx::qt
