// SPDX-License-Identifier: MIT
#pragma once

#include <QMdiArea>
#include <QString>

namespace hx::studio {

/// The area of the editor windows. While it is empty it shows a hint.
class DocumentArea : public QMdiArea {
  public:
    DocumentArea();
    void setHint(const QString& hint);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString hint_;
};

}  // namespace hx::studio
