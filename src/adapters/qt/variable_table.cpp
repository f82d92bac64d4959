#include "adapters/qt/variable_table.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

namespace hx::qt {

namespace {

constexpr int nameCharacters = 38, typeCharacters = 10, commentCharacters = 40, usualRows = 18;

bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isText(const QKeyEvent& event) {
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return !command && !event.text().isEmpty() && event.text().front().isPrint() && event.key() != Qt::Key_Space;
}

}  // namespace

VariableTable::VariableTable(VariableModel& model, QLineEdit& search) : search_(search) {
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    fitColumns();
    search_.installEventFilter(this);
}

void VariableTable::fitColumns() {
    const QFontMetrics font = fontMetrics();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(font.height() * 4 / 3);
    setColumnWidth(VariableModel::nameColumn, font.averageCharWidth() * nameCharacters);
    setColumnWidth(VariableModel::typeColumn, font.averageCharWidth() * typeCharacters);
}

QSize VariableTable::sizeHint() const {
    const int characters = nameCharacters + typeCharacters + commentCharacters;
    return {fontMetrics().averageCharWidth() * characters, fontMetrics().height() * 4 / 3 * usualRows};
}

void VariableTable::goTo(int row) {
    selectRow(row);
    scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
}

void VariableTable::keyPressEvent(QKeyEvent* event) {
    if (toggle_ && event->key() == Qt::Key_Space) return toggle_();
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
