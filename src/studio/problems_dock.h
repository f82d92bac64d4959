// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QLineEdit>
#include <QToolButton>

#include "adapters/qt/controls/plain_label.h"
#include "studio/known_variables.h"
#include "studio/live_project.h"
#include "studio/problems.h"

namespace hx::studio {

/// Lists what is wrong in the open project, and keeps the list up to date.
class ProblemsDock : public QDockWidget {
  public:
    /// All are lent. `knownChanged` is called when other variables than before are known.
    ProblemsDock(QWidget& window, LiveProject& live, KnownVariables& known, std::function<void()> knownChanged,
                 const qt::Wording& wording, FoundView::GoTo goTo);

    /// Tells how many there are; a click shows the list.
    [[nodiscard]] QWidget& count() noexcept { return count_; }
    void retranslate();

  private:
    void read();
    void take(std::shared_ptr<const Problems> problems);
    void filter();
    void showCount();

    LiveProject& live_;
    KnownVariables& known_;
    std::function<void()> knownChanged_;
    const qt::Wording& wording_;
    QWidget panel_;
    QLineEdit field_;
    qt::PlainLabel state_;
    FoundModel model_{2};
    FoundView list_;
    QToolButton count_;
    std::shared_ptr<const Problems> problems_;  // null while they are not known
    QString failure_;
    forms::Subscription changes_;
    ProjectReading reading_;
};

}  // namespace hx::studio
