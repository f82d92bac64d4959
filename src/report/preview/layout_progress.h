// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "report/preview/pages.h"

namespace hx::report {

/// Lays out the pages that are left while the user looks at the others, and shows how far it is. Hidden when nothing is
/// going on.
class LayoutProgress : public QWidget {
  public:
    /// The pages are lent.
    LayoutProgress(Pages& pages, const QString& name, const QString& stop, QWidget* parent);

    void goOn();
    void stop();
    [[nodiscard]] bool isGoingOn() const { return timer_.isActive(); }

    /// Called when there are more pages.
    std::function<void()> advanced;

  private:
    void layOutSome();

    Pages& pages_;
    QTimer timer_;
    QProgressBar bar_;
    QPushButton stop_;
};

}  // namespace hx::report
