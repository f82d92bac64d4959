// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeWidget>
#include <functional>

#include "adapters/qt/help/help_book.h"

namespace hx::qt {

/// The table of contents of a book as a tree.
class HelpContents : public QTreeWidget {
  public:
    explicit HelpContents(QWidget* parent);
    void setBook(const HelpBook& book);
    /// Makes the entry of this topic the current one, without a call of `chosen`.
    void select(const QString& path);

    /// Called with the path of an entry that the user makes the current one.
    std::function<void(const QString& path)> chosen;

  private:
    void add(const std::vector<HelpEntry>& entries, QTreeWidgetItem* parent);
    bool selecting_ = false;
};

}  // namespace hx::qt
