// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_contents.h"

#include <QScopedValueRollback>
#include <QTreeWidgetItemIterator>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr int pathRole = Qt::UserRole;

}  // namespace

HelpContents::HelpContents(QWidget* parent) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("helpContents"));
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (selecting_ || item == nullptr || !chosen) return;
        const QString path = item->data(0, pathRole).toString();
        if (!path.isEmpty()) chosen(path);
    });
}

void HelpContents::setBook(const HelpBook& book) {
    const QScopedValueRollback selecting(selecting_, true);
    clear();
    add(book.contents(), invisibleRootItem());
    expandAll();
}

void HelpContents::add(const std::vector<HelpEntry>& entries, QTreeWidgetItem* parent) {
    for (const HelpEntry& entry : entries) {
        auto* item = new QTreeWidgetItem(parent, QStringList(entry.title));
        item->setData(0, pathRole, entry.path);
        item->setToolTip(0, plainToolTip(entry.title));
        item->setIcon(0, namedIcon(entry.children.empty() ? "help/topic" : "help/book"));
        add(entry.children, item);
    }
}

void HelpContents::select(const QString& path) {
    const QScopedValueRollback selecting(selecting_, true);
    const QString wanted = helpPath(path);
    for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
        const QString own = helpPath((*item)->data(0, pathRole).toString());
        if (wanted.isEmpty() || own.compare(wanted, Qt::CaseInsensitive) != 0) continue;
        return setCurrentItem(*item);
    }
    setCurrentItem(nullptr);
}

}  // namespace hx::qt
