// SPDX-License-Identifier: MIT
#include "studio/row_copy.h"

#include <algorithm>

#include "adapters/qt/text.h"
#include "ado/recordset.h"

namespace hx::studio {

namespace {

// In the order in which they are shown.
std::vector<std::int32_t> markedRows(forms::Grid& grid) {
    std::vector<std::int32_t> rows;
    if (!grid.dataSource() || grid.dataSource()->state() != ado::adStateOpen) return rows;
    const auto search = grid.dataSource()->clone();
    for (const ado::Bookmark& bookmark : grid.selectedRows().bookmarks()) {
        search->setBookmark(bookmark);
        rows.push_back(search->absolutePosition() - 1);
    }
    std::ranges::sort(rows);
    if (rows.empty() && grid.row() >= 0) rows.push_back(grid.row());
    return rows;
}

// A cell must not end its row.
QString oneLine(QString text) { return text.replace('\t', ' ').replace('\n', ' ').remove('\r'); }

QString tableRow(const QStringList& cells, const QString& tag) {
    QString row = QStringLiteral("<tr>");
    for (const QString& cell : cells) row += '<' + tag + '>' + cell.toHtmlEscaped() + QStringLiteral("</") + tag + '>';
    return row + QStringLiteral("</tr>\n");
}

}  // namespace

RowCopy::RowCopy(forms::Grid& grid) {
    std::vector<std::int32_t> columns;
    for (const forms::Column* column : grid.columnsInDisplayOrder()) {
        if (!column->visible()) continue;
        columns.push_back(grid.columnNumber(automation::Variant(column->dataField())));
        captions_ << qt::toQt(column->caption());
    }
    for (const std::int32_t row : markedRows(grid)) {
        QStringList& cells = rows_.emplace_back();
        for (const std::int32_t column : columns) cells << oneLine(qt::toQt(grid.text(row, column)));
    }
}

QString RowCopy::text() const {
    QString text;
    for (const QStringList& cells : rows_) text += cells.join('\t') + '\n';
    return text;
}

QString RowCopy::html() const {
    QString table = QStringLiteral("<table>\n") + tableRow(captions_, QStringLiteral("th"));
    for (const QStringList& cells : rows_) table += tableRow(cells, QStringLiteral("td"));
    return table + QStringLiteral("</table>\n");
}

}  // namespace hx::studio
