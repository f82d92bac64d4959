// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <QTreeWidget>

#include "adapters/qt/help/help_window.h"
#include "gui/desktop.h"

namespace hx::gui {

/// Clicks an entry of the contents as the window system reports it: a window that is blocked does not get it.
inline void clickContents(qt::HelpWindow& help, const QString& title) {
    auto& contents = find<QTreeWidget>(help, "helpContents");
    const QRect place = contents.visualItemRect(contents.findItems(title, Qt::MatchExactly | Qt::MatchRecursive).at(0));
    const QPoint point = contents.viewport()->mapTo(&help, place.center());
    QTest::mouseClick(help.windowHandle(), Qt::LeftButton, {}, point);
    handleEvents();
}

}  // namespace hx::gui
