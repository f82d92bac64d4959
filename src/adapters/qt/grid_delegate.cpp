#include "adapters/qt/grid_delegate.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <memory>

#include "adapters/qt/icons.h"
#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

constexpr int textMargin = 4;
constexpr int widestButton = 24;

}  // namespace

bool GridDelegate::hasButton(const QModelIndex& index) const {
    const forms::Grid* grid = model_.grid();
    return grid != nullptr && index.isValid() && grid->columns()[static_cast<std::size_t>(index.column())]->button();
}

QRect GridDelegate::buttonRect(const QRect& cell) {
    const int width = std::min(cell.height() + 4, widestButton);
    return {cell.right() - width, cell.top() + 1, width, cell.height() - 2};
}

QIcon GridDelegate::pictureOf(const forms::Column& column) const {
    QIcon& known = pictures_[column.buttonPicture().svg];
    if (known.isNull()) known = svgIcon(column.buttonPicture());
    if (known.isNull()) known = svgIcon(icons::choose);
    return known;
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const forms::Grid* grid = model_.grid();
    if (grid == nullptr) return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (selected) painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    const bool currentRow = index.row() == grid->row();
    const bool button = hasButton(index) && (currentRow || index.row() == hoveredRow_);
    QRect text = option.rect.adjusted(textMargin, 0, -textMargin, 0);
    if (button) text.setRight(buttonRect(option.rect).left() - textMargin);
    const auto alignment = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>() | Qt::AlignVCenter;
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QString shown = toQt(grid->text(index.row(), index.column()));
    const bool fits = option.fontMetrics.horizontalAdvance(shown) <= text.width();
    painter->drawText(text, static_cast<int>(alignment) | Qt::TextSingleLine,
                      fits ? shown : option.fontMetrics.elidedText(shown, Qt::ElideRight, text.width()));
    if (button) paintButton(*painter, option, index);
    if (currentRow && index.column() == grid->col()) {
        const bool focused = option.state.testFlag(QStyle::State_HasFocus);
        painter->setPen(option.palette.color(group, focused ? QPalette::Highlight : QPalette::Mid));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        if (focused) painter->drawRect(option.rect.adjusted(1, 1, -2, -2));
    }
}

void GridDelegate::paintButton(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionButton button;
    button.rect = buttonRect(option.rect);
    button.palette = option.palette;
    button.state = QStyle::State_Enabled | (pressed_ == index ? QStyle::State_Sunken : QStyle::State_Raised);
    const auto column = static_cast<std::size_t>(index.column());
    button.icon = pictureOf(*model_.grid()->columns()[column]);
    button.iconSize = QSize(14, 14);
    const QStyle* style = option.widget == nullptr ? QApplication::style() : option.widget->style();
    style->drawControl(QStyle::CE_PushButton, &button, &painter, option.widget);
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto text = index.data(Qt::DisplayRole).toString();
    const int button = hasButton(index) ? widestButton : 0;
    return {option.fontMetrics.horizontalAdvance(text) + 2 * textMargin + button + 2, option.fontMetrics.height()};
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
    auto line = std::make_unique<QLineEdit>(parent);
    line->setFrame(false);
    line->setTextMargins(textMargin - 2, 0, 0, 0);
    line->setAccessibleName(model_.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    line->setObjectName(QStringLiteral("cellEditor"));
    return line.release();  // the view owns it
}

void GridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    QRect rect = option.rect;
    if (hasButton(index)) rect.setRight(buttonRect(option.rect).left() - 1);
    editor->setGeometry(rect);
}

}  // namespace hx::qt
