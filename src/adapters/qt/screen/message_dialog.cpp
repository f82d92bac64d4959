#include "adapters/qt/screen/message_dialog.h"

#include <QApplication>
#include <QPushButton>
#include <array>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

using forms::message::Answer;

struct ButtonRow {
    QMessageBox::StandardButton button;
    Word word;
    Answer answer;
};

constexpr auto buttonRows = std::to_array<ButtonRow>({
    {QMessageBox::Yes, Word::yes, Answer::yes},
    {QMessageBox::No, Word::no, Answer::no},
    {QMessageBox::Ok, Word::ok, Answer::ok},
    {QMessageBox::Cancel, Word::cancel, Answer::cancel},
});

constexpr std::int32_t buttonMask = 0x0F, iconMask = 0xF0, defaultMask = 0xF00;

std::vector<QMessageBox::StandardButton> buttonsOf(std::int32_t style) {
    switch (style & buttonMask) {
        case forms::message::okCancel: return {QMessageBox::Ok, QMessageBox::Cancel};
        case forms::message::yesNoCancel: return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
        case forms::message::yesNo: return {QMessageBox::Yes, QMessageBox::No};
        default: return {QMessageBox::Ok};
    }
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
    const auto buttons = buttonsOf(style);
    for (const ButtonRow& row : buttonRows) {
        if (std::ranges::find(buttons, row.button) == buttons.end()) continue;
        QPushButton& button = *box_.addButton(row.button);
        button.setText(wording.text(row.word));
        button.setIcon(QIcon());
    }
    const auto number = static_cast<std::size_t>((style & defaultMask) / forms::message::defaultButton2);
    box_.setDefaultButton(buttons[std::min(number, buttons.size() - 1)]);
    box_.setEscapeButton(buttons.back());
}

Answer MessageDialog::ask() {
    const int pressed = box_.exec();
    for (const ButtonRow& row : buttonRows) {
        if (row.button == pressed) return row.answer;
    }
    return Answer::ok;
}

}  // namespace hx::qt
