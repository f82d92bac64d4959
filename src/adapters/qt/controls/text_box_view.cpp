// SPDX-License-Identifier: MIT
#include "adapters/qt/controls/text_box_view.h"

#include <QScopedValueRollback>

#include "adapters/qt/text.h"

namespace hx::qt {

TextBoxView::TextBoxView(forms::TextBox& box, SurroundingForm& form, QWidget& area) : ControlView(box, form) {
    if (box.multiLine()) makeMemo(area);
    else makeLine(area);
    watch(widget());
}

void TextBoxView::makeLine(QWidget& area) {
    line_ = std::make_unique<QLineEdit>(&area);
    connect(line_.get(), &QLineEdit::textEdited, this, &TextBoxView::typed);
    connect(line_.get(), &QLineEdit::cursorPositionChanged, this, &TextBoxView::caretMoved);
    connect(line_.get(), &QLineEdit::selectionChanged, this, &TextBoxView::caretMoved);
}

void TextBoxView::makeMemo(QWidget& area) {
    memo_ = std::make_unique<QPlainTextEdit>(&area);
    memo_->setTabChangesFocus(true);
    connect(memo_.get(), &QPlainTextEdit::textChanged, this, &TextBoxView::typed);
    connect(memo_.get(), &QPlainTextEdit::cursorPositionChanged, this, &TextBoxView::caretMoved);
    connect(memo_.get(), &QPlainTextEdit::selectionChanged, this, &TextBoxView::caretMoved);
}

QWidget& TextBoxView::widget() {
    if (line_) return *line_;
    return *memo_;
}

QString TextBoxView::text() const { return line_ ? line_->text() : memo_->toPlainText(); }

void TextBoxView::typed() {
    if (showing_) return;
    const auto keep = model()->share();
    caretMoved();
    modelOf<forms::TextBox>(*this)->setText(fromQt(text()));
}

void TextBoxView::caretMoved() {
    if (showing_) return;
    const int position = line_ ? line_->cursorPosition() : memo_->textCursor().position();
    const int anchor =
        line_ ? (line_->hasSelectedText() ? line_->selectionStart() : position) : memo_->textCursor().selectionStart();
    const int length =
        static_cast<int>(line_ ? line_->selectedText().size() : memo_->textCursor().selectedText().size());
    const QString shown = text();
    const auto start = toCharacters(shown, anchor);
    modelOf<forms::TextBox>(*this)->caretReported(start, toCharacters(shown, anchor + length) - start);
}

void TextBoxView::showText() {
    const QString wanted = toQt(modelOf<forms::TextBox>(*this)->text());
    if (wanted == text()) return;
    const QScopedValueRollback showing(showing_, true);
    if (line_) line_->setText(wanted);
    else memo_->setPlainText(wanted);
    showCaret();
}

void TextBoxView::showCaret() {
    const QScopedValueRollback showing(showing_, true);
    const auto& box = *modelOf<forms::TextBox>(*this);
    const QString shown = text();
    const int start = toUnits(shown, box.selStart());
    const int end = toUnits(shown, box.selStart() + box.selLength());
    if (line_) {
        line_->setCursorPosition(start);
        if (end > start) line_->setSelection(start, end - start);
        return;
    }
    QTextCursor cursor = memo_->textCursor();
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    memo_->setTextCursor(cursor);
}

void TextBoxView::showColor() {
    const bool face = modelOf<forms::TextBox>(*this)->backColor() == forms::SystemColor::buttonFace;
    QPalette palette = widget().palette();
    palette.setBrush(QPalette::Base, QWidget().palette().brush(face ? QPalette::Button : QPalette::Base));
    widget().setPalette(palette);
}

void TextBoxView::show(std::string_view property) {
    const auto& box = *modelOf<forms::TextBox>(*this);
    if (property == "Text") showText();
    else if (property == "SelStart" || property == "SelLength") showCaret();
    else if (property == "BackColor") showColor();
    else if (property == "Locked") line_ ? line_->setReadOnly(box.locked()) : memo_->setReadOnly(box.locked());
    else ControlView::show(property);
}

}  // namespace hx::qt
