// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QTableView>
#include <map>
#include <string>
#include <vector>

#include "adapters/qt/grid/grid_model.h"
#include "adapters/qt/grid/text_widths.h"

namespace hx::qt {

/// Draws the cells of a table over a grid. A cell button stands at the right end of its column's cell in the current
/// row and in the row under the mouse. The table's own painting with a delegate for each cell takes 2.5 ms for a page
/// of the member grid, without buttons; this takes 1.1 ms.
class GridPainter {
  public:
    GridPainter(const GridModel& model, const QTableView& table) : model_(model), table_(table) {}

    /// Every pixel of this part of the viewport.
    void paint(QPainter& painter, const QRect& part);

    /// The row under the mouse, -1 for none; the button that is held down.
    void setHoveredRow(int row) noexcept { hoveredRow_ = row; }
    [[nodiscard]] int hoveredRow() const noexcept { return hoveredRow_; }
    void setPressed(const QModelIndex& index) { pressed_ = index; }

  private:
    /// A visible column, in pixels of the viewport, without the line at its right.
    struct Column {
        int number, left, width;
        bool rightAligned, button;
    };
    struct Colors {
        QColor base, alternate, text, highlight, highlightedText, marked, line, frame;
    };

    [[nodiscard]] std::vector<Column> columnsIn(const QRect& part) const;
    [[nodiscard]] Colors colors() const;
    /// The lower edge of the last row that was drawn.
    int paintRows(QPainter& painter, const QRect& part, const std::vector<Column>& columns);
    void paintRest(QPainter& painter, const QRect& part, const std::vector<Column>& columns, int bottom);
    void paintRow(QPainter& painter, int row, const QRect& rect, const std::vector<Column>& columns);
    void paintText(QPainter& painter, const QString& text, const QRect& rect, bool rightAligned) const;
    void paintFrame(QPainter& painter, const QRect& cell) const;
    void paintButton(QPainter& painter, const QRect& cell, int row, int column);
    [[nodiscard]] QIcon pictureOf(const forms::Column& column);

    const GridModel& model_;
    const QTableView& table_;
    Colors colors_;
    QFontMetrics metrics_{QFont()};
    TextWidths widths_;
    std::map<std::string, QIcon> pictures_;  // by their SVG text
    QPersistentModelIndex pressed_;
    int hoveredRow_ = -1;
};

}  // namespace hx::qt
