// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/grid_delegate.h"

#include <QLineEdit>
#include <algorithm>

#include "adapters/qt/grid/grid_cell.h"
#include "adapters/qt/text.h"
#include "adapters/qt/text_limit.h"
#include "automation/text.h"

namespace hx::qt {

QSize GridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QString text = model_.text(index.row(), index.column());
    const int button = hasButton(model_, index.column()) ? widestCellButton : 0;
    return {option.fontMetrics.horizontalAdvance(text) + 2 * cellMargin + button + 2, option.fontMetrics.height()};
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    auto* line = new QLineEdit(parent);
    line->setFrame(false);
    line->setTextMargins(cellMargin - 2, 0, 0, 0);
    line->setAccessibleName(model_.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    line->setObjectName(QStringLiteral("cellEditor"));
    line->setContextMenuPolicy(Qt::NoContextMenu);  // the grid shows its own
    // A longer text that is there already stays whole.
    if (const std::size_t longest = model_.grid()->longestText(index.column())) {
        const std::size_t present = automation::characterCount(fromQt(model_.text(index.row(), index.column())));
        line->setValidator(new TextLimit(std::max(longest, present), line));
    }
    return line;
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    QRect rect = option.rect;
    if (hasButton(model_, index.column())) rect.setRight(buttonRect(option.rect).left() - 1);
    editor->setGeometry(rect);
}

}  // namespace hx::qt
