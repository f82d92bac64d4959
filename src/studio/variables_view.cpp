// SPDX-License-Identifier: MIT
#include "studio/variables_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

namespace hx::studio {

VariablesView::VariablesView(VariablesModel& model, VariablesKeys keys) : model_(model), keys_(std::move(keys)) {
    // Before there are rows, each of which it would be done for.
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    setSortingEnabled(true);
    const int character = fontMetrics().averageCharWidth();
    constexpr std::array widths{44, 14, 56, 14};
    for (int column = 0; column < VariablesModel::columns; ++column)
        setColumnWidth(column, widths[static_cast<std::size_t>(column)] * character);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
}

void VariablesView::finishEdit() {
    auto* const editor = viewport()->findChild<QLineEdit*>();
    if (editor != nullptr && isEditing()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    model_.handOn();
}

std::vector<int> VariablesView::selectedRows() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::ranges::unique(rows).begin(), rows.end());
    return rows;
}

const std::function<void()>* VariablesView::ofKey(const QKeyEvent& event) const {
    if (event.matches(QKeySequence::Copy)) return &keys_.copy;
    if (event.matches(QKeySequence::Paste)) return &keys_.paste;
    if (event.matches(QKeySequence::Find)) return &keys_.filter;
    if (event.keyCombination() == QKeyCombination(Qt::Key_Insert)) return &keys_.add;
    if (event.keyCombination() == QKeyCombination(Qt::Key_Delete)) return &keys_.remove;
    if (event.keyCombination() == QKeyCombination(Qt::SHIFT, Qt::Key_F12)) return &keys_.whereUsed;
    return nullptr;
}

// The keys are the window's elsewhere.
bool VariablesView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && !isEditing() &&
        ofKey(*static_cast<const QKeyEvent*>(event)) != nullptr) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void VariablesView::keyPressEvent(QKeyEvent* event) {
    if (isEditing()) return QTableView::keyPressEvent(event);
    if (const auto* action = ofKey(*event)) return (*action)();
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().flags().testFlag(Qt::ItemIsEditable)) return edit(currentIndex());
    QTableView::keyPressEvent(event);
}

void VariablesView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, hint);
    edited();
}

}  // namespace hx::studio
