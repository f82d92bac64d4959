// SPDX-License-Identifier: MIT
#include "adapters/qt/screen/message_dialog.h"

#include <QApplication>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "adapters/qt/text.h"
#include "forms/message_style.h"

namespace hx::qt {

namespace {

using forms::message::Answer;

struct ButtonRow {
    QMessageBox::StandardButton button;
    const char* text;
    Answer answer;
};

constexpr auto buttonRows = std::to_array<ButtonRow>({
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("dialogs", "&Yes"), Answer::yes},
    {QMessageBox::No, QT_TRANSLATE_NOOP("dialogs", "&No"), Answer::no},
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("dialogs", "OK"), Answer::ok},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("dialogs", "Cancel"), Answer::cancel},
});

constexpr std::int32_t iconMask = 0xF0;

QMessageBox::StandardButton buttonOf(Answer answer) {
    return std::ranges::find(buttonRows, answer, &ButtonRow::answer)->button;
}

QMessageBox::Icon iconOf(std::int32_t style) {
    switch (style & iconMask) {
        case forms::message::critical: return QMessageBox::Critical;
        case forms::message::question: return QMessageBox::Question;
        case forms::message::exclamation: return QMessageBox::Warning;
        case forms::message::information: return QMessageBox::Information;
        default: return QMessageBox::NoIcon;
    }
}

}  // namespace

MessageDialog::MessageDialog(const Wording& wording, const QString& text, std::int32_t style, const QString& title)
    : box_(iconOf(style), title.isEmpty() ? toQt(forms::message::defaultTitle) : title, text, QMessageBox::NoButton,
           QApplication::activeWindow()) {
    box_.setObjectName(QStringLiteral("messageBox"));
    box_.setTextFormat(Qt::PlainText);
    box_.setTextInteractionFlags(Qt::TextSelectableByMouse);
    addButtons(wording, style);
}

void MessageDialog::addButtons(const Wording& wording, std::int32_t style) {
    const auto answers = forms::message::buttonsOf(style);
    for (const ButtonRow& row : buttonRows) {
        if (std::ranges::find(answers, row.answer) == answers.end()) continue;
        QPushButton& button = *box_.addButton(row.button);
        button.setText(wording.translate("dialogs", row.text));
        button.setIcon(QIcon());
    }
    box_.setDefaultButton(buttonOf(forms::message::defaultButtonOf(style)));
    box_.setEscapeButton(buttonOf(forms::message::escapeAnswerOf(style)));
}

Answer MessageDialog::ask() {
    const int pressed = box_.exec();
    for (const ButtonRow& row : buttonRows) {
        if (row.button == pressed) return row.answer;
    }
    return Answer::ok;
}

}  // namespace hx::qt
