// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/explorer/qt_explorer.h"
#include "adapters/qt/wording.h"

namespace hx::studio {

/// The line above the explorer: finds recipes by parts of their names, and orders them by their names.
class ExplorerFilter : public QWidget {
  public:
    /// All are lent. `sort` stands in it as a button.
    ExplorerFilter(qt::QtExplorer& explorer, qt::ExplorerTree& tree, QAction& sort, const qt::Wording& wording);

    /// Gives it the keyboard.
    void start();
    /// Another project is open: nothing is looked for.
    void clear();
    [[nodiscard]] QString text() const { return field_.text(); }
    void setText(const QString& text) { field_.setText(text); }
    void retranslate();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void apply();
    void keepCurrent(const std::string& key);
    void goToFound();
    void showCount();
    [[nodiscard]] bool isFiltering() const { return !field_.text().trimmed().isEmpty(); }

    qt::QtExplorer& explorer_;
    qt::ExplorerTree& tree_;
    QAction& sort_;
    const qt::Wording& wording_;
    QHBoxLayout row_{this};
    QLineEdit field_;
    qt::PlainLabel count_;
    QToolButton sortButton_;
    QTimer countSoon_;
    bool filtering_ = false;
    std::vector<std::string> expanded_;  // before anything was hidden
    std::string hidden_;                 // the node that was the current one
};

}  // namespace hx::studio
