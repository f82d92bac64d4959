// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_view.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScopeGuard>
#include <QScrollBar>
#include <algorithm>

#include "adapters/qt/controls/surrounding_form.h"
#include "adapters/qt/header_selection.h"
#include "adapters/qt/keys.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr double splitGap = 105;   // twips between the tables, where a bar to drag stands
constexpr double leastPane = 600;  // twips; in a narrower table nobody sees where the keyboard is

/// The number of the visible column at the right end; -1 when none is visible.
int lastShownColumn(const forms::Grid& grid) {
    const auto columns = grid.columnsInDisplayOrder();
    const auto last =
        std::find_if(columns.rbegin(), columns.rend(), [](const auto* column) { return column->visible(); });
    return last == columns.rend() ? -1 : grid.columnNumber(automation::Variant((*last)->dataField()));
}

bool isOfTheMouse(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseMove ||
           event.type() == QEvent::MouseButtonRelease || event.type() == QEvent::MouseButtonDblClick;
}

}  // namespace

GridView::GridView(forms::Grid& grid, SurroundingForm& form, QWidget& area)
    : ControlView(grid, form),
      box_(&area),
      model_(grid, form.services().marks, [this](const automation::Error& error) { report(error); }),
      selection_(model_) {
    addPane(right_, 1);
    box_.setFocusPolicy(Qt::StrongFocus);
    box_.setFocusProxy(right_.get());
    box_.installEventFilter(this);
    grid.setHitTester([this](double x, double y) { return hitTest(x, y); });
    subscribe();
    followColumns();
    rowsChanged();
}

void GridView::addPane(std::unique_ptr<GridPane>& pane, int split) {
    pane = std::make_unique<GridPane>(*this, model_, &box_);
    pane->setObjectName(QStringLiteral("%1.Splits(%2)").arg(objectNameOf(*model())).arg(split));
    pane->setAccessibleName(accessibleName());
    pane->setSelectionModel(&selection_);
    ignoreSelection(*pane);
    pane->setFocusPolicy(focusPolicy(*pane));
    pane->fitRows();
    watch(*pane);
    watch(*pane->horizontalHeader()->viewport());
    watch(*pane->verticalHeader()->viewport());
}

void GridView::subscribe() {
    forms::Grid& grid = *this->grid();
    subscriptions_.push_back(grid.rowsChanged.subscribe([this] { rowsChanged(); }));
    subscriptions_.push_back(grid.rowChanged.subscribe([this](std::int32_t row) {
        model_.refreshRow(row);
        repaint();
    }));
    subscriptions_.push_back(grid.columnsChanged.subscribe([this] { followColumns(); }));
    subscriptions_.push_back(grid.currentCellChanged.subscribe([this] { currentCellChanged(); }));
    subscriptions_.push_back(grid.settleEvent.subscribe([this] { settle(); }));
    subscriptions_.push_back(grid.selectedRows().changed.subscribe([this] { selection_.followSelectedRows(); }));
    for (std::int32_t i = 0; i < 2; ++i) {
        subscriptions_.push_back(grid.split(i).changed.subscribe([this] { place(); }));
    }
}

void GridView::detach() {
    grid()->setHitTester({});
    subscriptions_.clear();
    columnChanges_.clear();
    model_.detach();
    ControlView::detach();
}

std::vector<GridPane*> GridView::panes() const {
    std::vector<GridPane*> result{right_.get()};
    if (left_) result.push_back(left_.get());
    return result;
}

void GridView::followColumns() {
    columnChanges_.clear();
    for (const auto& column : grid()->columns()) {
        columnChanges_.push_back(column->changed.subscribe([this](std::string_view property) {
            if (property == "Caption") model_.refreshHeader(0);
            layOutColumns();
            repaint();
        }));
    }
    // What is being typed is for the same cell still when the columns have only changed their places.
    const bool others = model_.columnCount() != static_cast<int>(grid()->columns().size());
    for (GridPane* pane : panes()) others ? pane->dropEditor() : pane->settle();
    model_.refresh();
    layOutColumns();
    currentCellChanged();
}

void GridView::rowsChanged() {
    for (GridPane* pane : panes()) pane->dropEditor();
    model_.refresh();
    selection_.followSelectedRows();
    currentCellChanged();
    for (GridPane* pane : panes()) pane->restartSelection();
}

void GridView::currentCellChanged() {
    model_.followCurrentRow();
    for (GridPane* pane : panes()) {
        if (pane->editor() == nullptr || pane->currentIndex() == model_.currentCell()) continue;
        pane->settle();
        pane->dropEditor();  // it has nowhere to wait
    }
    selection_.followCurrentCell();
    if (const QModelIndex cell = model_.currentCell(); cell.isValid()) right_->scrollTo(cell);
    repaint();
}

void GridView::repaint() {
    model_.followCurrentRow();
    for (GridPane* pane : panes()) {
        pane->viewport()->update();
        pane->verticalHeader()->viewport()->update();
    }
}

void GridView::layOutColumns() {
    for (GridPane* pane : panes()) pane->layOutColumns(pane == right_.get());
}

void GridView::layOut() {
    ControlView::layOut();
    QRect rect = box_.geometry();
    rect.setBottom(std::min(rect.bottom(), form().freeBottom(*box_.parentWidget(), rect.bottom() + 1) - 1));
    box_.setGeometry(rect);
    place();
}

void GridView::place() {
    const int split = std::clamp(units().pixels(grid()->split(0).size()), 0, box_.width());
    if (split > 0 && !left_) {
        addPane(left_, 0);
        connect(left_->verticalScrollBar(), &QScrollBar::valueChanged, right_->verticalScrollBar(),
                &QScrollBar::setValue);
        connect(right_->verticalScrollBar(), &QScrollBar::valueChanged, left_->verticalScrollBar(),
                &QScrollBar::setValue);
        left_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        left_->showSort();
        placeInTabOrder(*left_);
    }
    const int gap = units().pixels(splitGap);
    const int rest = box_.width() - split - gap;
    const bool both = split > 0 && rest >= units().pixels(leastPane);
    if (left_) {
        left_->setVisible(both);
        left_->setGeometry(0, 0, split, box_.height());
        left_->setFocusPolicy(focusPolicy(*left_));
        left_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        left_->verticalScrollBar()->setValue(right_->verticalScrollBar()->value());
    }
    right_->showSelector(!both);
    // Both scroll bars, or none: the rows of the two tables stand beside each other down to the last.
    right_->setHorizontalScrollBarPolicy(both ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    // Where nothing of it would be seen it takes the place of the other one, up to the bar at the end.
    if (both) right_->setGeometry(split + gap, 0, rest, box_.height());
    else right_->setGeometry(0, 0, box_.width() - (split > 0 ? gap : 0), box_.height());
    layOutColumns();
}

// Right before the other one: as the last that was made it would come at the end of the whole window.
void GridView::placeInTabOrder(GridPane& left) {
    box_.setFocusProxy(nullptr);
    QWidget::setTabOrder(right_->previousInFocusChain(), &left);
    box_.setFocusProxy(right_.get());
}

void GridView::report(const automation::Error& error) {
    // While one message waits or is shown, all that fails is of the same trouble.
    if (std::exchange(telling_, true)) return;
    QMetaObject::invokeMethod(
        this, [this, error] { tell(error); }, Qt::QueuedConnection);
}

void GridView::tell(const automation::Error& error) {
    // The window may end while the message is shown.
    const auto told = qScopeGuard([view = QPointer(this)] {
        if (view) view->goOn();
    });
    if (grid() == nullptr) return;
    const auto keep = model()->share();
    const auto keepForm = form().model()->share();
    grid()->viewFailed(error);
}

void GridView::goOn() {
    telling_ = false;
    for (GridPane* pane : panes()) pane->returnToEditor();
}

void GridView::giveUpEdit() {
    model_.errors().run([this] { grid()->cancelUpdate(); });
}

void GridView::settle() {
    for (GridPane* pane : panes()) pane->settle();
}

void GridView::headClicked(int column) {
    const auto keep = model()->share();
    settle();
    grid()->headClick(column);
    if (grid() != nullptr) show("SortText");
}

// The last column spans what is left of the table: taken from the end, it stays as wide as the user saw it.
void GridView::columnMoved(int column, int order) {
    const auto keep = model()->share();
    const int last = lastShownColumn(*grid());
    const int width = last < 0 ? 0 : right_->columnWidth(last);
    grid()->columnMoved(column, static_cast<std::int16_t>(order));
    if (grid() != nullptr && last >= 0 && lastShownColumn(*grid()) != last) {
        grid()->columns()[static_cast<std::size_t>(last)]->setWidth(units().twips(width));
    }
    layOutColumns();
}

void GridView::columnResized(int column, int pixels) {
    const auto keep = model()->share();
    grid()->columnResized(column, units().twips(pixels));
    layOutColumns();
}

void GridView::buttonClicked(const QModelIndex& cell) {
    const auto keep = model()->share();
    const auto keepForm = form().model()->share();
    model_.errors().run([&] { grid()->buttonClick(cell.row(), cell.column()); });
}

void GridView::editorOpened(QLineEdit& editor) {
    const auto report = [this, &editor] {
        if (grid() == nullptr) return;
        grid()->editorReported(fromQt(editor.text()), toCharacters(editor.text(), editor.cursorPosition()));
    };
    connect(&editor, &QLineEdit::textChanged, this, report);
    connect(&editor, &QLineEdit::cursorPositionChanged, this, report);
    watch(editor);
    report();
}

void GridView::editorClosed() {
    if (grid() != nullptr) grid()->editorClosed();
}

void GridView::reportMouse(const QMouseEvent& event, QWidget& part) {
    if (model() != nullptr) tellMouse(event.type(), mouseReport(event, part));
}

void GridView::reportMenuKey(GridPane& pane) {
    const QPoint point = pane.currentCellPoint();
    const auto here = form().popUps().atKeyboard(pane.mapToGlobal(point));
    const QPoint inBox = pane.mapTo(&box_, point);
    const forms::MouseEvent mouse{forms::button::right, 0, units().twips(inBox.x()), units().twips(inBox.y())};
    tellMouse(QEvent::MouseButtonPress, mouse);
    tellMouse(QEvent::MouseButtonRelease, mouse);
}

forms::GridHit GridView::hitTest(double x, double y) const {
    const QPoint point(units().pixels(x), units().pixels(y));
    for (const GridPane* pane : panes()) {
        if (!pane->isHidden() && pane->geometry().contains(point)) return pane->hit(pane->mapFromParent(point));
    }
    return forms::GridHit::nowhere;
}

QString GridView::accessibleName() const {
    const QString caption = toQt(form().model()->caption());
    return caption.isEmpty() ? ControlView::accessibleName() : caption;
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (model() == nullptr) return false;
    if (watched == &box_) {
        if (event->type() == QEvent::Resize) place();
        return false;
    }
    for (const GridPane* pane : panes()) {
        if (event == pane->passing()) return false;
    }
    if (event->type() == QEvent::ShortcutOverride && claims(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    if (isOfTheMouse(*event) && qobject_cast<QLineEdit*>(watched) != nullptr) {
        reportLater(static_cast<QMouseEvent&>(*event), static_cast<QWidget&>(*watched));
        return false;
    }
    return ControlView::eventFilter(watched, event);
}

// A cell's editor can end, and be deleted, under a menu or dialog that the report opens: it must have the event behind
// it.
void GridView::reportLater(const QMouseEvent& event, const QWidget& editor) {
    const auto tell = [this, type = event.type(), mouse = mouseReport(event, editor)] { tellMouse(type, mouse); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

bool GridView::claims(const QKeyEvent& event) const {
    return grid()->claims({virtualKey(event), shiftState(event.modifiers())});
}

Qt::FocusPolicy GridView::focusPolicy(const GridPane& pane) const {
    const bool tooNarrow = &pane == left_.get() && pane.width() < units().pixels(leastPane);
    return model()->tabStop() && !tooNarrow ? Qt::StrongFocus : Qt::ClickFocus;
}

void GridView::show(std::string_view property) {
    if (property == "SortText") {
        for (GridPane* pane : panes()) pane->showSort();
    } else if (property == "TabStop") {
        for (GridPane* pane : panes()) pane->setFocusPolicy(focusPolicy(*pane));
    } else {
        ControlView::show(property);
    }
    if (property == "Font") {
        for (GridPane* pane : panes()) pane->fitRows();
    }
    repaint();
}

}  // namespace hx::qt
