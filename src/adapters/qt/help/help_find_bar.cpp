// SPDX-License-Identifier: MIT
#include "adapters/qt/help/help_find_bar.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>

#include "adapters/qt/svg_icon.h"
#include "adapters/qt/text.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

namespace {

constexpr qsizetype mostMatches = 1000;
const QColor markColor(0xff, 0xe9, 0xa8);

}  // namespace

HelpFindBar::HelpFindBar(QTextBrowser& page, const Wording& wording, QWidget* parent)
    : QWidget(parent), page_(page), wording_(wording) {
    setObjectName(QStringLiteral("helpFindBar"));
    field_.setObjectName(QStringLiteral("helpFind"));
    field_.setClearButtonEnabled(true);
    field_.setMaximumWidth(320);
    field_.installEventFilter(this);
    setUpButton(previous_, "helpFindPrevious", "help/up");
    setUpButton(next_, "helpFindNext", "help/down");
    setUpButton(close_, "helpFindClose", "help/close");
    state_.setObjectName(QStringLiteral("helpFindState"));
    row_.setContentsMargins(8, 4, 8, 4);
    for (QWidget* widget : {static_cast<QWidget*>(&field_), static_cast<QWidget*>(&previous_),
                            static_cast<QWidget*>(&next_), static_cast<QWidget*>(&state_)}) {
        row_.addWidget(widget);
    }
    row_.addStretch();
    row_.addWidget(&close_);
    connect(&field_, &QLineEdit::textChanged, this, [this] { textChanged(); });
    connect(&previous_, &QToolButton::clicked, this, [this] { previous(); });
    connect(&next_, &QToolButton::clicked, this, [this] { next(); });
    connect(&close_, &QToolButton::clicked, this, [this] { close(); });
    retranslate();
    hide();
}

void HelpFindBar::setUpButton(QToolButton& button, const char* name, const char* icon) {
    button.setObjectName(QLatin1StringView(name));
    button.setIcon(namedIcon(icon));
    button.setAutoRaise(true);
}

void HelpFindBar::retranslate() {
    const auto name = [](QToolButton& button, const QString& text, const char* keys) {
        button.setToolTip(plainToolTip(text + QStringLiteral(" (%1)").arg(QLatin1StringView(keys))));
        button.setAccessibleName(text);
    };
    name(previous_, wording_.translate("help", "Previous Match"), wording_.isEnglish() ? "Shift+F3" : "Umschalt+F3");
    name(next_, wording_.translate("help", "Next Match"), "F3");
    name(close_, wording_.translate("help", "Close Find"), "Esc");
    field_.setPlaceholderText(wording_.translate("help", "Find on Page"));
    field_.setAccessibleName(wording_.translate("help", "Find on Page"));
    showMarks();
}

void HelpFindBar::open() {
    const QString selected = page_.textCursor().selectedText();
    const bool usable = !selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator);
    show();
    if (usable) field_.setText(selected);
    field_.setFocus(Qt::ShortcutFocusReason);
    field_.selectAll();
    textChanged();
}

void HelpFindBar::close() {
    hide();
    matches_.clear();
    current_ = -1;
    showMarks();
    page_.setFocus(Qt::OtherFocusReason);
}

void HelpFindBar::pageChanged() {
    matches_.clear();
    current_ = -1;
    if (isVisible()) collect(field_.text());
    showMarks();
}

void HelpFindBar::mark(const QStringList& words) {
    matches_.clear();
    current_ = -1;
    for (const QString& word : words) collect(word);
    if (!matches_.isEmpty()) {
        QTextCursor first = matches_.constFirst();
        first.setPosition(first.selectionStart());
        page_.setTextCursor(first);
        page_.ensureCursorVisible();
    }
    showMarks();
}

void HelpFindBar::textChanged() {
    matches_.clear();
    current_ = -1;
    collect(field_.text());
    if (!matches_.isEmpty()) next();
    showMarks();
}

void HelpFindBar::collect(const QString& word) {
    if (word.isEmpty()) return;
    QTextCursor place(page_.document());
    for (place = page_.document()->find(word, place); !place.isNull() && matches_.size() < mostMatches;
         place = page_.document()->find(word, place)) {
        matches_.append(place);
    }
}

void HelpFindBar::go(int step) {
    if (matches_.isEmpty()) return showMarks();
    current_ =
        current_ < 0 ? (step > 0 ? 0 : matches_.size() - 1) : (current_ + step + matches_.size()) % matches_.size();
    page_.setTextCursor(matches_[current_]);
    page_.ensureCursorVisible();
    showMarks();
}

void HelpFindBar::showMarks() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& match : matches_) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = match;
        mark.format.setBackground(markColor);
        marks.append(mark);
    }
    page_.setExtraSelections(marks);
    QString text;
    if (!field_.text().isEmpty()) {
        text =
            matches_.isEmpty()
                ? wording_.translate("help", "Not found")
                : wording_.translate("help", "%1 of %2").arg(std::max<qsizetype>(current_ + 1, 1)).arg(matches_.size());
    }
    state_.setText(text);
    next_.setEnabled(!matches_.isEmpty());
    previous_.setEnabled(!matches_.isEmpty());
}

bool HelpFindBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &field_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            go(key->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace hx::qt
