// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/tool_tips.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QToolTip>

#include "adapters/qt/controls/plain_label.h"
#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

QString ofButton(const QAbstractButton& button) {
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    const QAction* action = tool == nullptr ? nullptr : tool->defaultAction();
    const QString key = (action == nullptr ? button.shortcut() : action->shortcut()).toString(QKeySequence::NativeText);
    QString tip = button.toolTip();
    if (key.isEmpty() || tip.contains(key) || Qt::mightBeRichText(tip)) return {};
    if (tip.isEmpty()) tip = button.text().remove('&');
    return tip.isEmpty() ? QString() : QStringLiteral("%1 (%2)").arg(tip, key);
}

// What of a rectangle the user sees.
int seenWidth(const QAbstractItemView& view, const QRect& rect) {
    return rect.intersected(view.viewport()->rect()).width();
}

QString ofSection(const QHeaderView& header, const QPoint& place) {
    const int section = header.logicalIndexAt(place);
    if (section < 0 || header.model() == nullptr || header.sectionSizeHint(section) <= header.sectionSize(section))
        return {};
    return header.model()->headerData(section, header.orientation()).toString();
}

QString ofItem(const QAbstractItemView& view, const QPoint& place) {
    const QModelIndex index = view.indexAt(place);
    if (!index.isValid() || index.data(Qt::ToolTipRole).isValid()) return {};
    const QRect rect = view.visualRect(index);
    return view.sizeHintForIndex(index).width() > seenWidth(view, rect) ? index.data().toString() : QString();
}

QString ofText(const QWidget& widget, const QString& text) {
    const int room = widget.contentsRect().width();
    const bool whole = widget.fontMetrics().horizontalAdvance(text) <= room;
    return whole || !widget.toolTip().isEmpty() ? QString() : text;
}

}  // namespace

QString ToolTips::textAt(const QWidget& widget, const QPoint& place) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return ofButton(*button);
    if (const auto* label = dynamic_cast<const PlainLabel*>(&widget))
        return label->wordWrap() ? QString() : ofText(widget, label->text());
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        return line->echoMode() == QLineEdit::Normal ? ofText(widget, line->text()) : QString();
    }
    const auto* view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
    if (view == nullptr || view->viewport() != &widget) return {};
    const auto* header = qobject_cast<const QHeaderView*>(view);
    return header != nullptr ? ofSection(*header, place) : ofItem(*view, place);
}

bool ToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType()) return false;
    auto* const widget = static_cast<QWidget*>(watched);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QString text = textAt(*widget, help.pos());
    if (text.isEmpty()) return false;
    QToolTip::showText(help.globalPos(), plainToolTip(text), widget);
    return true;
}

}  // namespace hx::qt
