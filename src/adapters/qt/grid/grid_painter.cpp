// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_painter.h"

#include <QHeaderView>
#include <QStyleOptionButton>
#include <QStyleOptionViewItem>
#include <algorithm>

#include "adapters/qt/grid/grid_cell.h"
#include "adapters/qt/svg_icon.h"

namespace hx::qt {

namespace {

// Read well on either background.
constexpr QColor markedInLight(0xB3, 0x26, 0x1E), markedInDark(0xFF, 0x8A, 0x80);

bool isDark(const QColor& color) { return color.lightness() < 128; }

}  // namespace

void GridPainter::paint(QPainter& painter, const QRect& part) {
    colors_ = colors();
    metrics_ = table_.fontMetrics();
    widths_.use(table_.font());
    painter.setFont(table_.font());
    const std::vector<Column> columns = model_.grid() == nullptr ? std::vector<Column>() : columnsIn(part);
    const int bottom = columns.empty() ? part.top() : paintRows(painter, part, columns);
    paintRest(painter, part, columns, bottom);
}

int GridPainter::paintRows(QPainter& painter, const QRect& part, const std::vector<Column>& columns) {
    const int first = table_.rowAt(std::max(0, part.top()));
    if (first < 0) return part.top();
    const int left = columns.front().left;
    const int right = columns.back().left + columns.back().width + 1;
    int bottom = table_.rowViewportPosition(first);
    for (int row = first; row < model_.rowCount() && bottom <= part.bottom(); ++row) {
        const int height = table_.rowHeight(row);
        paintRow(painter, row, QRect(left, bottom, right - left, height), columns);
        bottom += height;
    }
    for (const Column& column : columns) {
        painter.fillRect(column.left + column.width, part.top(), 1, bottom - part.top(), colors_.line);
    }
    return bottom;
}

// Beside the columns, and below the rows.
void GridPainter::paintRest(QPainter& painter, const QRect& part, const std::vector<Column>& columns, int bottom) {
    const int left = columns.empty() ? part.left() : columns.front().left;
    const int right = columns.empty() ? part.left() : columns.back().left + columns.back().width + 1;
    const auto fill = [&](int x, int y, int endX, int endY) {
        if (x < endX && y < endY) painter.fillRect(x, y, endX - x, endY - y, colors_.base);
    };
    const int endX = part.right() + 1, endY = part.bottom() + 1;
    fill(part.left(), part.top(), left, bottom);
    fill(right, part.top(), endX, bottom);
    fill(part.left(), bottom, endX, endY);
}

std::vector<GridPainter::Column> GridPainter::columnsIn(const QRect& part) const {
    const QHeaderView& header = *table_.horizontalHeader();
    std::vector<Column> columns;
    for (int place = 0; place < std::min(header.count(), model_.columnCount()); ++place) {
        const int number = header.logicalIndex(place);
        const int left = header.sectionViewportPosition(number);
        const int width = header.sectionSize(number);
        if (header.isSectionHidden(number) || left + width <= part.left() || left > part.right()) continue;
        columns.push_back({number, left, width - 1, model_.isRightAligned(number), hasButton(model_, number)});
    }
    return columns;
}

GridPainter::Colors GridPainter::colors() const {
    const auto group = !table_.isEnabled()       ? QPalette::Disabled
                       : table_.isActiveWindow() ? QPalette::Active
                                                 : QPalette::Inactive;
    const QPalette& palette = table_.palette();
    QStyleOptionViewItem option;
    option.initFrom(&table_);
    const int line = table_.style()->styleHint(QStyle::SH_Table_GridLineColor, &option, &table_);
    return {.base = palette.color(group, QPalette::Base),
            .alternate = palette.color(group, QPalette::AlternateBase),
            .text = palette.color(group, QPalette::Text),
            .highlight = palette.color(group, QPalette::Highlight),
            .highlightedText = palette.color(group, QPalette::HighlightedText),
            .marked = isDark(palette.color(group, QPalette::Base)) ? markedInDark : markedInLight,
            .line = QColor::fromRgb(static_cast<QRgb>(line)),
            .frame = palette.color(group, table_.hasFocus() ? QPalette::Highlight : QPalette::Mid)};
}

void GridPainter::paintRow(QPainter& painter, int row, const QRect& rect, const std::vector<Column>& columns) {
    const bool selected = table_.selectionModel()->isSelected(model_.index(row, columns.front().number));
    const bool current = row == model_.currentRow();
    painter.fillRect(rect, selected ? colors_.highlight : row % 2 == 0 ? colors_.base : colors_.alternate);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, colors_.line);
    painter.setPen(selected ? colors_.highlightedText : colors_.text);
    for (const Column& column : columns) {
        const QRect cell(column.left, rect.top(), column.width, rect.height() - 1);
        const bool button = column.button && (current || row == hoveredRow_);
        QRect text = cell.adjusted(cellMargin, 0, -cellMargin, 0);
        if (button) text.setRight(buttonRect(cell).left() - cellMargin);
        const QString shown = model_.text(row, column.number);
        const bool marked = !selected && model_.isMarked(column.number, shown);
        if (marked) painter.setPen(colors_.marked);
        paintText(painter, shown, text, column.rightAligned);
        if (marked) painter.setPen(colors_.text);
        if (button) paintButton(painter, cell, row, column.number);
        if (current && column.number == model_.grid()->col()) paintFrame(painter, cell);
    }
}

void GridPainter::paintText(QPainter& painter, const QString& text, const QRect& rect, bool rightAligned) const {
    if (text.isEmpty()) return;
    const auto width = widths_.of(text);
    if (width && *width <= rect.width()) {
        const int left = rightAligned ? rect.right() + 1 - *width : rect.left();
        painter.drawText(left, rect.top() + (rect.height() - metrics_.height()) / 2 + metrics_.ascent(), text);
        return;
    }
    const int flags = Qt::TextSingleLine | Qt::AlignVCenter | (rightAligned ? Qt::AlignRight : Qt::AlignLeft);
    painter.drawText(rect, flags, metrics_.elidedText(text, Qt::ElideRight, rect.width()));
}

void GridPainter::paintFrame(QPainter& painter, const QRect& cell) const {
    const QPen pen = painter.pen();
    painter.setPen(colors_.frame);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
    if (table_.hasFocus()) painter.drawRect(cell.adjusted(1, 1, -2, -2));
    painter.setPen(pen);
}

void GridPainter::paintButton(QPainter& painter, const QRect& cell, int row, int column) {
    QStyleOptionButton button;
    button.rect = buttonRect(cell);
    button.palette = table_.palette();
    const bool pressed = pressed_.isValid() && pressed_.row() == row && pressed_.column() == column;
    button.state = QStyle::State_Enabled | (pressed ? QStyle::State_Sunken : QStyle::State_Raised);
    button.icon = pictureOf(*model_.grid()->columns()[static_cast<std::size_t>(column)]);
    button.iconSize = QSize(14, 14);
    const QPen pen = painter.pen();
    table_.style()->drawControl(QStyle::CE_PushButton, &button, &painter, &table_);
    painter.setPen(pen);
}

QIcon GridPainter::pictureOf(const forms::Column& column) {
    QIcon& known = pictures_[column.buttonPicture().svg];
    if (known.isNull()) known = svgIcon(column.buttonPicture());
    if (known.isNull()) known = namedIcon("choose");
    return known;
}

}  // namespace hx::qt
