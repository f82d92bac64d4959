// SPDX-License-Identifier: MIT
#include "adapters/qt/keys.h"

#include <array>

namespace hx::qt {

namespace {

struct CodedKey {
    Qt::Key qt;
    std::int16_t code;
};

// Of two keys with the same code the first is the one that is sent.
constexpr auto codedKeys = std::to_array<CodedKey>({
    {Qt::Key_Backspace, forms::key::backspace},
    {Qt::Key_Tab, forms::key::tab},
    {Qt::Key_Backtab, forms::key::tab},
    {Qt::Key_Return, forms::key::enter},
    {Qt::Key_Enter, forms::key::enter},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Escape, forms::key::escape},
    {Qt::Key_Space, forms::key::space},
    {Qt::Key_PageUp, forms::key::pageUp},
    {Qt::Key_PageDown, forms::key::pageDown},
    {Qt::Key_End, forms::key::end},
    {Qt::Key_Home, forms::key::home},
    {Qt::Key_Left, forms::key::left},
    {Qt::Key_Up, forms::key::up},
    {Qt::Key_Right, forms::key::right},
    {Qt::Key_Down, forms::key::down},
    {Qt::Key_Insert, forms::key::insert},
    {Qt::Key_Delete, forms::key::del},
    {Qt::Key_Menu, 93},
});

// A key without a code is known by what it types.
int keyOf(const forms::KeyStroke& stroke) {
    for (const CodedKey& key : codedKeys) {
        if (key.code == stroke.code) return key.qt;
    }
    if (stroke.code >= forms::key::f1) return Qt::Key_F1 + stroke.code - forms::key::f1;
    return stroke.code != 0 ? stroke.code : static_cast<int>(QChar::toUpper(static_cast<char32_t>(stroke.character)));
}

}  // namespace

std::int16_t virtualKey(const QKeyEvent& event) {
    const int key = event.key();
    for (const CodedKey& coded : codedKeys) {
        if (coded.qt == key) return coded.code;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return static_cast<std::int16_t>(forms::key::f1 + key - Qt::Key_F1);
    }
    const bool sameInAscii = (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
    return sameInAscii ? static_cast<std::int16_t>(key) : std::int16_t{0};
}

std::int16_t shiftState(Qt::KeyboardModifiers modifiers) {
    int state = forms::shift::none;
    if (modifiers.testFlag(Qt::ShiftModifier)) state |= forms::shift::shift;
    if (modifiers.testFlag(Qt::ControlModifier)) state |= forms::shift::ctrl;
    if (modifiers.testFlag(Qt::AltModifier)) state |= forms::shift::alt;
    return static_cast<std::int16_t>(state);
}

std::int16_t buttonNumber(Qt::MouseButton button) { return buttonNumber(Qt::MouseButtons(button)); }

std::int16_t buttonNumber(Qt::MouseButtons buttons) {
    int number = 0;
    if (buttons.testFlag(Qt::LeftButton)) number |= forms::button::left;
    if (buttons.testFlag(Qt::RightButton)) number |= forms::button::right;
    if (buttons.testFlag(Qt::MiddleButton)) number |= forms::button::middle;
    return static_cast<std::int16_t>(number);
}

std::int32_t typedCharacter(const QKeyEvent& event) {
    const auto characters = event.text().toUcs4();
    return characters.isEmpty() ? 0 : static_cast<std::int32_t>(characters.front());
}

forms::MouseEvent mouseEvent(const QMouseEvent& event, const QPointF& point, const Units& units) {
    const bool isMove = event.type() == QEvent::MouseMove;
    return {isMove ? buttonNumber(event.buttons()) : buttonNumber(event.button()), shiftState(event.modifiers()),
            units.twips(point.x()), units.twips(point.y())};
}

QKeyEvent keyEvent(QEvent::Type type, const forms::KeyStroke& stroke) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (stroke.shift & forms::shift::shift) != 0);
    modifiers.setFlag(Qt::ControlModifier, (stroke.shift & forms::shift::ctrl) != 0);
    modifiers.setFlag(Qt::AltModifier, (stroke.shift & forms::shift::alt) != 0);
    const auto character = static_cast<char32_t>(stroke.character);
    return {type, keyOf(stroke), modifiers, character == 0 ? QString() : QString::fromUcs4(&character, 1)};
}

}  // namespace hx::qt
