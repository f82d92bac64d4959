// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/record_selector.h"

#include <QPainter>
#include <QPolygonF>

namespace hx::qt {

namespace {

constexpr int selectorWidth = 22;

void paintTriangle(QPainter& painter, const QRectF& box) {
    painter.drawPolygon(QPolygonF(
        {box.topLeft() + QPointF(2, 0), QPointF(box.right() - 1, box.center().y()), box.bottomLeft() + QPointF(2, 0)}));
}

void paintPencil(QPainter& painter, const QRectF& box) {
    const QPointF tip = box.bottomLeft();
    painter.drawPolygon(QPolygonF({tip, tip + QPointF(1, -4), box.topRight() + QPointF(-4, 0),
                                   box.topRight() + QPointF(0, 4), tip + QPointF(4, -1)}));
}

}  // namespace

RecordSelector::RecordSelector(GridModel& model, QWidget* parent) : QHeaderView(Qt::Vertical, parent), model_(model) {
    setSectionResizeMode(QHeaderView::Fixed);
    setSectionsClickable(true);
    setHighlightSections(false);
}

QSize RecordSelector::sizeHint() const { return {selectorWidth, 0}; }

void RecordSelector::paintSection(QPainter* painter, const QRect& rect, int row) const {
    const QPalette& colors = palette();
    const bool selected = selectionModel() != nullptr && selectionModel()->isRowSelected(row, {});
    painter->fillRect(rect, selected ? colors.brush(QPalette::Highlight) : colors.brush(QPalette::Button));
    painter->setPen(colors.color(QPalette::Mid));
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->drawLine(rect.topRight(), rect.bottomRight());
    const forms::Grid* grid = model_.grid();
    if (grid == nullptr || row != model_.currentRow()) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colors.color(selected ? QPalette::HighlightedText : QPalette::ButtonText));
    QRectF box(0, 0, 9, 9);
    box.moveCenter(QRectF(rect).center());
    grid->dataChanged() ? paintPencil(*painter, box) : paintTriangle(*painter, box);
    painter->restore();
}

}  // namespace hx::qt
