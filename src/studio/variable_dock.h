// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QTimer>

#include "adapters/qt/controls/plain_label.h"
#include "project/variable_entry.h"
#include "studio/found_uses.h"
#include "studio/live_project.h"
#include "studio/navigator.h"

namespace hx::studio {

/// Beside the editor: what the variable list says of the variable in the grid's current row, and which other recipes
/// use it.
class VariableDock : public QDockWidget {
  public:
    /// All are lent.
    VariableDock(QWidget& window, LiveProject& live, Navigator& navigator, const qt::Wording& wording,
                 FoundView::GoTo goTo);
    void retranslate();

  private:
    struct Found {
        std::optional<project::VariableEntry> entry;
        std::shared_ptr<const FoundUses> uses;
    };
    void arrange();
    void follow();
    void read();
    void take(Found found);
    void showState();

    LiveProject& live_;
    Navigator& navigator_;
    const qt::Wording& wording_;
    QWidget panel_;
    qt::PlainLabel name_, type_, comment_, state_;
    FoundModel model_{2};
    FoundView list_;
    std::string variable_;  // that is shown
    std::int64_t recipe_ = 0;
    std::optional<Found> found_;
    QString failure_;
    QTimer soon_;
    forms::Subscription changes_, moves_;
    ProjectReading reading_;
};

}  // namespace hx::studio
