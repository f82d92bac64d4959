// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>
#include <QTimer>

#include "adapters/qt/grid/grid_delegate.h"
#include "adapters/qt/grid/grid_painter.h"
#include "adapters/qt/grid/grid_selection.h"

class QLineEdit;

namespace hx::qt {

class GridView;

/// One split of a grid: a table over the grid's rows. A click makes a cell current, a second click or typing edits it;
/// rows are selected by the record selector, or with Shift and Ctrl.
class GridPane : public QTableView {
  public:
    GridPane(GridView& owner, GridModel& model, QWidget* parent);

    /// Shows the selector of rows at the left.
    void showSelector(bool shown);
    void fitRows();
    /// Columns in the grid's order, width and visibility; `fill`: the last one spans what is left.
    void layOutColumns(bool fill);
    void showSort();
    /// Shift extends the selection from the current cell on.
    void restartSelection();
    /// Hands the open editor's text to the model and closes it, unless that fails; drops it.
    void settle();
    void dropEditor();
    [[nodiscard]] QLineEdit* editor() const;
    /// Gives the keyboard back to an editor that had to wait.
    void returnToEditor();
    [[nodiscard]] forms::GridHit hit(const QPoint& point) const;
    /// Where a menu for the current cell opens, in this widget.
    [[nodiscard]] QPoint currentCellPoint() const;
    /// The event that the pane hands on to its editor, not to be reported again.
    [[nodiscard]] const QEvent* passing() const noexcept { return passing_; }

  protected:
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void commitData(QWidget* editor) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Typing opens the editor; it never searches through the rows.
    void keyboardSearch(const QString&) override {}

  private:
    [[nodiscard]] QModelIndex buttonAt(const QPoint& point) const;
    void hover(const QPoint& point);
    void editNeighbour(CursorAction move);
    void setUpHeader();
    void sectionMoved(int column, int newVisual);
    void sectionResized(int column, int width);

    GridView& owner_;
    GridModel& model_;
    GridDelegate delegate_;
    GridPainter painter_;
    QTimer editSoon_;
    QPersistentModelIndex pressedButton_, pressedCurrent_;
    const QEvent* passing_ = nullptr;
    bool layingOut_ = false, restarting_ = false;
    bool fill_ = false;
};

}  // namespace hx::qt
