// SPDX-License-Identifier: MIT
#include "adapters/qt/choosers/variable_table.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "adapters/qt/header_selection.h"

namespace hx::qt {

namespace {

constexpr int usualRows = 18;

/// How wide a column may be at first, in characters.
struct Bounds {
    int least, most;
};

constexpr std::array<Bounds, 3> bounds = {{{24, 60}, {8, 16}, {24, 50}}};

bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isText(const QKeyEvent& event) {
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !command && !event.text().isEmpty() && event.text().front().isPrint() && event.key() != Qt::Key_Space;
}

}  // namespace

VariableTable::VariableTable(VariableModel& model, QLineEdit& search) : search_(search) {
    // Before there are rows, each of which it would be done for.
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 4 / 3);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    ignoreSelection(*this);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    fitColumns(model);
    search_.installEventFilter(this);
}

// The longest text decides; measuring each of many thousands would take its time.
void VariableTable::fitColumns(const VariableModel& model) {
    const QFontMetrics font = fontMetrics();
    width_ = verticalScrollBar()->sizeHint().width() + font.height();
    for (int column = 0; column < static_cast<int>(bounds.size()); ++column) {
        const auto [least, most] = bounds[static_cast<std::size_t>(column)];
        const int wanted = font.horizontalAdvance(model.longest(column)) + 2 * font.height();
        const int width = std::clamp(wanted, least * font.averageCharWidth(), most * font.averageCharWidth());
        if (column != VariableModel::commentColumn) setColumnWidth(column, width);  // the last one takes the rest
        width_ += width;
    }
}

QSize VariableTable::sizeHint() const { return {width_, fontMetrics().height() * 4 / 3 * usualRows}; }

void VariableTable::goTo(int row) {
    selectRow(row);
    scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
}

// Qt's own view would toggle the check mark of the current row with any modifier.
void VariableTable::spacePressed(Qt::KeyboardModifiers modifiers) {
    if (!modifiers.testFlag(Qt::ControlModifier)) return toggle_();
    selectionModel()->select(currentIndex(), QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
}

void VariableTable::keyPressEvent(QKeyEvent* event) {
    if (toggle_ && event->key() == Qt::Key_Space) return spacePressed(event->modifiers());
    if (!isText(*event)) return QTableView::keyPressEvent(event);
    search_.setFocus(Qt::OtherFocusReason);
    QApplication::sendEvent(&search_, event);
}

bool VariableTable::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &search_ && event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (movesInList(key.key()) && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
            QTableView::keyPressEvent(&key);
            if (toggle_) setFocus(Qt::OtherFocusReason);
            return true;
        }
    }
    return QTableView::eventFilter(watched, event);
}

}  // namespace hx::qt
