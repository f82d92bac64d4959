// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_pane.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "adapters/qt/grid/grid_cell.h"
#include "adapters/qt/grid/grid_view.h"
#include "adapters/qt/grid/record_selector.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr int rowSpace = 7;

bool extends(const QKeyEvent& key) {
    const bool vertical = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down || key.key() == Qt::Key_PageUp ||
                          key.key() == Qt::Key_PageDown || key.key() == Qt::Key_Home || key.key() == Qt::Key_End;
    return vertical && key.modifiers().testFlag(Qt::ShiftModifier);
}

}  // namespace

GridPane::GridPane(GridView& owner, GridModel& model, QWidget* parent)
    : QTableView(parent), owner_(owner), model_(model), delegate_(model), painter_(model, *this) {
    setItemDelegate(&delegate_);
    setVerticalHeader(new RecordSelector(model, this));
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setFrameShape(QFrame::StyledPanel);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    editSoon_.setSingleShot(true);
    connect(&editSoon_, &QTimer::timeout, this, [this] {
        if (state() == NoState && currentIndex().flags().testFlag(Qt::ItemIsEditable)) edit(currentIndex());
    });
    setUpHeader();
}

void GridPane::setUpHeader() {
    QHeaderView& header = *horizontalHeader();
    header.setSectionsMovable(true);
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setSortIndicatorShown(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(&header, &QHeaderView::sectionClicked, this, [this](int column) { owner_.headClicked(column); });
    connect(&header, &QHeaderView::sectionMoved, this, [this](int column, int, int to) { sectionMoved(column, to); });
    connect(&header, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { sectionResized(column, width); });
}

void GridPane::showSelector(bool shown) { verticalHeader()->setVisible(shown); }

void GridPane::fitRows() {
    const int height = fontMetrics().height() + rowSpace;
    if (verticalHeader()->defaultSectionSize() == height) return;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void GridPane::layOutColumns(bool fill) {
    const forms::Grid* grid = model_.grid();
    if (grid == nullptr || layingOut_) return;
    const QScopedValueRollback layingOut(layingOut_, true);
    fill_ = fill;
    QHeaderView& header = *horizontalHeader();
    const auto& columns = grid->columns();
    if (header.count() != static_cast<int>(columns.size())) return;
    int place = 0, others = 0, last = -1;
    for (const forms::Column* column : grid->columnsInDisplayOrder()) {
        const auto found = std::ranges::find(columns, column, [](const auto& owned) { return owned.get(); });
        const int number = static_cast<int>(found - columns.begin());
        header.moveSection(header.visualIndex(number), place++);
        header.setSectionHidden(number, !column->visible());
        header.setSectionResizeMode(number, column->allowSizing() ? QHeaderView::Interactive : QHeaderView::Fixed);
        if (!column->visible()) continue;
        if (last >= 0) others += header.sectionSize(last);
        header.resizeSection(number, owner_.pixels(column->width()));
        last = number;
    }
    if (fill && last >= 0) header.resizeSection(last, std::max(header.sectionSize(last), viewport()->width() - others));
}

void GridPane::showSort() {
    const forms::Grid* grid = model_.grid();
    const auto [sorted, descending] = grid->sortColumn();
    QHeaderView& header = *horizontalHeader();
    header.setSortIndicatorShown(sorted != nullptr);
    if (sorted == nullptr) return;
    const auto& columns = grid->columns();
    const auto found = std::ranges::find(columns, sorted, [](const auto& owned) { return owned.get(); });
    header.setSortIndicator(static_cast<int>(found - columns.begin()),
                            descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void GridPane::sectionMoved(int column, int newVisual) {
    if (!layingOut_) owner_.columnMoved(column, newVisual);
}

void GridPane::sectionResized(int column, int width) {
    if (!layingOut_) owner_.columnResized(column, width);
}

QLineEdit* GridPane::editor() const {
    return state() == EditingState ? dynamic_cast<QLineEdit*>(indexWidget(currentIndex())) : nullptr;
}

void GridPane::settle() {
    editSoon_.stop();
    if (QLineEdit* line = editor()) {
        commitData(line);
        closeEditor(line, QAbstractItemDelegate::NoHint);
    }
}

void GridPane::returnToEditor() {
    QLineEdit* line = editor();
    if (line != nullptr && window()->focusWidget() == this) line->setFocus(Qt::OtherFocusReason);
}

void GridPane::dropEditor() {
    editSoon_.stop();
    if (QLineEdit* line = editor()) closeEditor(line, QAbstractItemDelegate::RevertModelCache);
}

bool GridPane::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool opened = QTableView::edit(index, trigger, event);
    if (QLineEdit* line = opened ? editor() : nullptr) owner_.editorOpened(*line);
    return opened;
}

// A text that could not be handed over stays in its editor, where the user can try again. The message about it takes
// the keyboard away from the editor, which is no reason to try.
void GridPane::commitData(QWidget* editor) {
    if (!owner_.telling()) QTableView::commitData(editor);
}

void GridPane::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (owner_.telling() && hint != QAbstractItemDelegate::RevertModelCache) return;
    owner_.editorClosed();
    const bool next = hint == QAbstractItemDelegate::EditNextItem;
    if (!next && hint != QAbstractItemDelegate::EditPreviousItem) return QTableView::closeEditor(editor, hint);
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    editNeighbour(next ? MoveNext : MovePrevious);
}

// Qt's own way would select the row, and edit a cell that did not become current.
void GridPane::editNeighbour(CursorAction move) {
    const QPersistentModelIndex cell = moveCursor(move, Qt::NoModifier);
    if (!cell.isValid()) return;
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
    const bool there = cell.isValid() && currentIndex() == cell;
    if (there && cell.flags().testFlag(Qt::ItemIsEditable)) edit(cell, AllEditTriggers, nullptr);
}

// Left and Right with Shift move when they are released, where the model says.
QModelIndex GridPane::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const bool sideways = action == MoveLeft || action == MoveRight;
    if (sideways && modifiers.testFlag(Qt::ShiftModifier)) return currentIndex();
    return QTableView::moveCursor(action, modifiers);
}

void GridPane::restartSelection() {
    const QScopedValueRollback restarting(restarting_, true);
    setCurrentIndex(currentIndex());
}

QItemSelectionModel::SelectionFlags GridPane::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    const forms::Grid* grid = model_.grid();
    if (restarting_ || grid == nullptr || grid->multiSelect() == forms::MultiSelect::none) {
        return QItemSelectionModel::NoUpdate;
    }
    if (event == nullptr) return QTableView::selectionCommand(index, event);  // the selector of rows
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (!key.modifiers().testFlag(Qt::ShiftModifier)) return QItemSelectionModel::Clear;
        const bool extended = grid->multiSelect() == forms::MultiSelect::extended;
        return extends(key) && extended ? QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows
                                        : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
    }
    if (event->type() != QEvent::MouseButtonPress) return QItemSelectionModel::NoUpdate;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (mouse.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier))
        return QTableView::selectionCommand(index, event);
    const bool keep = mouse.button() == Qt::RightButton && selectionModel()->isRowSelected(index.row(), {});
    return keep ? QItemSelectionModel::NoUpdate : QItemSelectionModel::Clear;
}

QModelIndex GridPane::buttonAt(const QPoint& point) const {
    const QModelIndex index = indexAt(point);
    const bool inside =
        index.isValid() && hasButton(model_, index.column()) && buttonRect(visualRect(index)).contains(point);
    return inside ? index : QModelIndex();
}

void GridPane::hover(const QPoint& point) {
    const int row = rowAt(point.y());
    if (row == painter_.hoveredRow()) return;
    painter_.setHoveredRow(row);
    viewport()->update();
}

void GridPane::paintEvent(QPaintEvent* event) {
    const GridErrors::Picture picture(model_.errors());
    QPainter painter(viewport());
    painter_.paint(painter, event->rect());
}

void GridPane::mousePressEvent(QMouseEvent* event) {
    editSoon_.stop();
    const QPoint point = event->position().toPoint();
    const bool left = event->button() == Qt::LeftButton;
    const QModelIndex cell = indexAt(point);
    pressedCurrent_ = left && event->modifiers() == Qt::NoModifier && cell == currentIndex() ? cell : QModelIndex();
    pressedButton_ = left ? buttonAt(point) : QModelIndex();
    if (pressedButton_.isValid()) {
        settle();
        selectionModel()->setCurrentIndex(pressedButton_, QItemSelectionModel::NoUpdate);
        painter_.setPressed(pressedButton_);
        viewport()->update();
    } else {
        QTableView::mousePressEvent(event);
    }
    owner_.reportMouse(*event, *viewport());
}

void GridPane::mouseMoveEvent(QMouseEvent* event) {
    hover(event->position().toPoint());
    if (!pressedButton_.isValid()) QTableView::mouseMoveEvent(event);
    owner_.reportMouse(*event, *viewport());
}

void GridPane::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (const QPersistentModelIndex button = pressedButton_; button.isValid()) {
        pressedButton_ = QModelIndex();
        painter_.setPressed(pressedButton_);
        viewport()->update();
        owner_.reportMouse(*event, *viewport());
        if (buttonAt(point) == button) owner_.buttonClicked(button);
        return;
    }
    QTableView::mouseReleaseEvent(event);
    if (pressedCurrent_.isValid() && pressedCurrent_ == indexAt(point) && state() == NoState) {
        editSoon_.start(QApplication::doubleClickInterval());
    }
    owner_.reportMouse(*event, *viewport());
}

void GridPane::mouseDoubleClickEvent(QMouseEvent* event) {
    editSoon_.stop();
    pressedCurrent_ = QModelIndex();
    if (buttonAt(event->position().toPoint()).isValid()) return mousePressEvent(event);
    QTableView::mouseDoubleClickEvent(event);
    owner_.reportMouse(*event, *viewport());
}

void GridPane::leaveEvent(QEvent* event) {
    hover(QPoint(-1, -1));
    QTableView::leaveEvent(event);
}

void GridPane::keyPressEvent(QKeyEvent* event) {
    forms::Grid* grid = model_.grid();
    if (event->key() == Qt::Key_Escape && state() == NoState && grid != nullptr && grid->dataChanged()) {
        return owner_.giveUpEdit();
    }
    const QScopedValueRollback<const QEvent*> passing(passing_, event);
    QTableView::keyPressEvent(event);
}

void GridPane::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) owner_.reportMenuKey(*this);
    event->accept();
}

void GridPane::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    layOutColumns(fill_);
}

QPoint GridPane::currentCellPoint() const {
    const QRect cell = visualRect(currentIndex());
    return viewport()->mapToParent(cell.isValid() ? cell.bottomLeft() : QPoint());
}

forms::GridHit GridPane::hit(const QPoint& point) const {
    if (horizontalHeader()->geometry().contains(point)) return forms::GridHit::columnHeader;
    if (!verticalHeader()->isHidden() && verticalHeader()->geometry().contains(point)) {
        const int row = rowAt(viewport()->mapFromParent(point).y());
        return row >= 0 ? forms::GridHit::recordSelector : forms::GridHit::nowhere;
    }
    return indexAt(viewport()->mapFromParent(point)).isValid() ? forms::GridHit::cell : forms::GridHit::nowhere;
}

}  // namespace hx::qt
