// SPDX-License-Identifier: MIT
#pragma once

#include <QStatusBar>
#include <QTimer>
#include <memory>
#include <vector>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/wording.h"
#include "forms/grid.h"
#include "studio/history_commands.h"
#include "studio/navigator.h"

namespace hx::studio {

/// What the studio's status line says of the place where the user is: recipe, rows, marked rows, and whether all is
/// stored.
class EditorStatus : public QObject {
  public:
    /// All are lent.
    EditorStatus(QStatusBar& bar, qt::QtExplorer& explorer, qt::ExplorerTree& tree, const Navigator& navigator,
                 HistoryCommands& history, const qt::Wording& wording);

    /// Something has changed: it is shown when control returns to the event loop.
    void refresh() { soon_.start(); }

  private:
    void show();
    void follow();
    [[nodiscard]] QString rowsText() const;
    [[nodiscard]] QString storedText() const;

    qt::QtExplorer& explorer_;
    const Navigator& navigator_;
    HistoryCommands& history_;
    const qt::Wording& wording_;
    qt::PlainLabel recipe_, rows_, stored_;
    QTimer soon_;
    std::weak_ptr<forms::Grid> grid_;
    std::vector<forms::Subscription> subscriptions_;
};

}  // namespace hx::studio
