// SPDX-License-Identifier: MIT
#include "studio/shortcut_list.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QTextDocument>
#include <QTextTable>
#include <QVBoxLayout>

#include "adapters/qt/text.h"
#include "automation/text.h"
#include "automation/word_filter.h"

namespace hx::studio {

namespace {

constexpr QSize listSize(640, 560);
constexpr int keyWidth = 220;

QString plain(QString caption) { return caption.remove('&').remove(QStringLiteral("…")); }

QString keysOf(const QAction& action) {
    QStringList keys;
    for (const QKeySequence& key : action.shortcuts()) keys << key.toString(QKeySequence::NativeText);
    return keys.join(QStringLiteral(", "));
}

void collect(const QMenu& menu, ShortcutList::Group& group) {
    for (const QAction* action : menu.actions()) {
        if (action->menu() != nullptr) collect(*action->menu(), group);
        else if (!action->shortcut().isEmpty())
            group.entries << ShortcutList::Entry{keysOf(*action), plain(action->text().section('\t', 0, 0))};
    }
}

QString textOf(const QTextTableCell& cell) {
    QStringList lines;
    for (auto block = cell.begin(); !block.atEnd(); ++block) lines << block.currentBlock().text();
    return lines.join(' ').simplified();
}

QString headingBefore(const QTextTable& table) {
    QTextBlock block = table.document()->findBlock(table.firstPosition()).previous();
    while (block.isValid() && block.blockFormat().headingLevel() == 0) block = block.previous();
    return block.text();
}

}  // namespace

QList<ShortcutList::Group> ShortcutList::ofMenus(const QList<QAction*>& menus) {
    QList<Group> groups;
    for (const QAction* entry : menus) {
        if (entry->menu() == nullptr) continue;
        Group group{plain(entry->text()), {}};
        collect(*entry->menu(), group);
        if (!group.entries.isEmpty()) groups << group;
    }
    return groups;
}

// The first row of a table says what its columns are.
QList<ShortcutList::Group> ShortcutList::ofTopic(const QString& html) {
    QTextDocument topic;
    topic.setHtml(html);
    QList<Group> groups;
    for (QTextFrame* frame : topic.rootFrame()->childFrames()) {
        const auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr || table->columns() != 2) continue;
        Group group{headingBefore(*table), {}};
        for (int row = 1; row < table->rows(); ++row)
            group.entries << Entry{textOf(table->cellAt(row, 0)), textOf(table->cellAt(row, 1))};
        groups << group;
    }
    return groups;
}

ShortcutList::ShortcutList(QWidget& window, const QList<Group>& groups, const qt::Wording& wording) : QDialog(&window) {
    setObjectName(QStringLiteral("shortcutList"));
    setWindowTitle(wording.translate("studio", "&Keyboard Shortcuts").remove('&'));
    field_.setObjectName(QStringLiteral("shortcutFilter"));
    field_.setPlaceholderText(wording.translate("studio", "Filter: words, -word excludes"));
    field_.setAccessibleName(wording.translate("studio", "Filter keyboard shortcuts"));
    field_.setClearButtonEnabled(true);
    list_.setObjectName(QStringLiteral("shortcuts"));
    list_.setAccessibleName(windowTitle());
    list_.setHeaderLabels({wording.translate("studio", "Key"), wording.translate("studio", "Effect")});
    list_.setColumnWidth(0, keyWidth);
    fill(groups);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(wording.translate("studio", "&Close"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&field_, &QLineEdit::textChanged, this, [this] { filter(); });
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(&field_);
    rows->addWidget(&list_, 1);
    rows->addWidget(buttons);
    resize(listSize);
    field_.setFocus();
}

void ShortcutList::fill(const QList<Group>& groups) {
    for (const Group& group : groups) {
        auto* const top = new QTreeWidgetItem(&list_, {group.title});
        top->setFirstColumnSpanned(true);
        for (const Entry& entry : group.entries) new QTreeWidgetItem(top, {entry.key, entry.effect});
    }
    list_.expandAll();
}

void ShortcutList::filter() {
    const automation::WordFilter words(qt::fromQt(field_.text()));
    for (int group = 0; group < list_.topLevelItemCount(); ++group) {
        QTreeWidgetItem& top = *list_.topLevelItem(group);
        int shown = 0;
        for (int row = 0; row < top.childCount(); ++row) {
            QTreeWidgetItem& item = *top.child(row);
            const QString text = top.text(0) + ' ' + item.text(0) + ' ' + item.text(1);
            item.setHidden(!words.matches(automation::foldCase(qt::fromQt(text))));
            shown += item.isHidden() ? 0 : 1;
        }
        top.setHidden(shown == 0);
    }
}

}  // namespace hx::studio
