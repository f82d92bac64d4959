// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QAction>
#include <QDockWidget>
#include <QListView>
#include <QToolBar>
#include <functional>

#include "adapters/qt/wording.h"
#include "history/history.h"

namespace hx::studio {

/// The steps of a history as rows, the state before all of them first.
class HistoryModel : public QAbstractListModel {
  public:
    /// `view` is who shows it, in its font.
    HistoryModel(const qt::Wording& wording, const QWidget& view, QObject* parent)
        : QAbstractListModel(parent), wording_(wording), view_(view) {}

    /// Null for none; lent until the next call.
    void setHistory(const history::History* history);
    /// The history or the language has changed.
    void refresh();
    /// The row of the state that the project is in.
    [[nodiscard]] int currentRow() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  private:
    [[nodiscard]] QString textOf(int row) const;
    [[nodiscard]] QString toolTipOf(int row) const;
    const qt::Wording& wording_;
    const QWidget& view_;
    const history::History* history_ = nullptr;
};

/// Lists the steps of the open project and goes to any of them: by Enter or a double click.
class HistoryDock : public QDockWidget {
  public:
    /// `goTo` is called with how many steps shall be done. The actions are lent, and stand above the list.
    HistoryDock(QWidget& window, QAction& undo, QAction& redo, const qt::Wording& wording,
                std::function<void(std::size_t position)> goTo);

    void setHistory(const history::History* history);
    void refresh();
    void retranslate();

  private:
    const qt::Wording& wording_;
    QWidget panel_;
    QToolBar tools_;
    QListView list_;
    HistoryModel model_;
};

}  // namespace hx::studio
