// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QTreeWidget>

#include "adapters/qt/wording.h"

namespace hx::studio {

/// Lists all keys: those of the studio's actions as they are now, and those of explorer, grid and dialogs, which the
/// help's topic on keys tells.
class ShortcutList : public QDialog {
  public:
    /// A key and what it does.
    struct Entry {
        QString key, effect;
    };
    struct Group {
        QString title;
        QList<Entry> entries;
    };

    ShortcutList(QWidget& window, const QList<Group>& groups, const qt::Wording& wording);

    /// Those of the actions of a menu bar that have keys, menu by menu.
    [[nodiscard]] static QList<Group> ofMenus(const QList<QAction*>& menus);
    /// Those that tables of a topic name, below headings.
    [[nodiscard]] static QList<Group> ofTopic(const QString& html);

  private:
    void fill(const QList<Group>& groups);
    void filter();

    QLineEdit field_;
    QTreeWidget list_;
};

}  // namespace hx::studio
