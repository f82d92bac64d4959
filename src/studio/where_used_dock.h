// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QLineEdit>

#include "adapters/qt/controls/plain_label.h"
#include "studio/found_uses.h"
#include "studio/live_project.h"

namespace hx::studio {

/// Lists where a variable or recipe is used, also through sub-recipes, and keeps the list up to date.
class WhereUsedDock : public QDockWidget {
  public:
    /// All are lent.
    WhereUsedDock(QWidget& window, LiveProject& live, const qt::Wording& wording, FoundView::GoTo goTo);

    /// Shows the uses of a variable or recipe of this name, or of one recipe.
    void showUsesOf(const QString& name);
    void showUsesOf(std::int64_t recipe);
    /// Asks for the name.
    void ask();
    void retranslate();

  private:
    void showUses();
    void read();
    void take(std::shared_ptr<const FoundUses> uses);
    void showState();

    LiveProject& live_;
    const qt::Wording& wording_;
    QWidget panel_;
    QLineEdit field_;
    qt::PlainLabel state_;
    FoundModel model_{2};
    FoundView list_;
    std::int64_t recipe_ = 0;  // whose uses are shown; 0: those of the name in the field
    std::string name_;
    std::shared_ptr<const FoundUses> uses_;
    QString failure_;
    forms::Subscription changes_;
    ProjectReading reading_;
};

}  // namespace hx::studio
