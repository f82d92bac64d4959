// SPDX-License-Identifier: MIT
#include "report/preview/find_bar.h"

#include <QKeyEvent>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"

namespace hx::report {

namespace {

constexpr int barMargin = 4, fieldWidth = 280;

}  // namespace

FindBar::FindBar(Find find, const qt::Wording& wording, QWidget* parent)
    : QWidget(parent), find_(std::move(find)), wording_(wording) {
    setObjectName(QStringLiteral("reportFindBar"));
    field_.setObjectName(QStringLiteral("reportFindText"));
    state_.setObjectName(QStringLiteral("reportFindState"));
    field_.setPlaceholderText(wording.translate("report", "Find in the report"));
    field_.setAccessibleName(field_.placeholderText());
    field_.setMaximumWidth(fieldWidth);
    field_.installEventFilter(this);
    row_.setContentsMargins(barMargin, barMargin, barMargin, barMargin);
    row_.addWidget(&field_, 1);
    const std::tuple<QToolButton*, const char*, const char*, QString, std::function<void()>> buttons[] = {
        {&previous_, "reportFindPrevious", "help/up", wording.translate("report", "Previous Match (Shift+F3)"),
         [this] { go(true); }},
        {&next_, "reportFindNext", "help/down", wording.translate("report", "Next Match (F3)"), [this] { go(false); }},
        {&close_, "reportFindClose", "help/close", wording.translate("report", "Close"), [this] { shut(); }}};
    for (const auto& [button, name, icon, text, run] : buttons) {
        button->setObjectName(QLatin1StringView(name));
        button->setIcon(qt::namedIcon(icon));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolTip(qt::plainToolTip(text));
        button->setAccessibleName(text);
        connect(button, &QToolButton::clicked, this, run);
    }
    row_.addWidget(&previous_);
    row_.addWidget(&next_);
    row_.addWidget(&state_, 1);
    row_.addWidget(&close_);
    connect(&field_, &QLineEdit::textChanged, this, [this] { state_.clear(); });
    hide();
}

void FindBar::open() {
    show();
    field_.setFocus(Qt::ShortcutFocusReason);
    field_.selectAll();
}

void FindBar::shut() {
    hide();
    closed();
}

void FindBar::go(bool backwards) {
    if (field_.text().isEmpty()) return open();
    state_.setText(find_(field_.text(), backwards) ? QString() : wording_.translate("report", "Not found"));
}

// Esc is the window's own otherwise.
bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QWidget::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!enter && key.key() != Qt::Key_Escape) return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::ShortcutOverride) return true;
    if (enter) go(key.modifiers().testFlag(Qt::ShiftModifier));
    else shut();
    return true;
}

}  // namespace hx::report
