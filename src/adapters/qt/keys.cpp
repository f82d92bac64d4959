#include "adapters/qt/keys.h"

#include <array>
#include <utility>

#include "adapters/qt/text.h"

namespace hx::qt {

namespace {

struct NamedKey {
    Qt::Key qt;
    std::int16_t code;
    const char* name;
};

constexpr auto namedKeys = std::to_array<NamedKey>({
    {Qt::Key_Backspace, 8, "BACKSPACE"},
    {Qt::Key_Tab, 9, "TAB"},
    {Qt::Key_Backtab, 9, ""},
    {Qt::Key_Return, 13, "ENTER"},
    {Qt::Key_Enter, 13, ""},
    {Qt::Key_Shift, 16, ""},
    {Qt::Key_Control, 17, ""},
    {Qt::Key_Alt, 18, ""},
    {Qt::Key_Escape, 27, "ESC"},
    {Qt::Key_Space, 32, ""},
    {Qt::Key_PageUp, 33, "PGUP"},
    {Qt::Key_PageDown, 34, "PGDN"},
    {Qt::Key_End, 35, "END"},
    {Qt::Key_Home, 36, "HOME"},
    {Qt::Key_Left, 37, "LEFT"},
    {Qt::Key_Up, 38, "UP"},
    {Qt::Key_Right, 39, "RIGHT"},
    {Qt::Key_Down, 40, "DOWN"},
    {Qt::Key_Insert, 45, "INSERT"},
    {Qt::Key_Delete, 46, "DELETE"},
    {Qt::Key_Menu, 93, ""},
});

constexpr std::int16_t firstFunctionKey = 112;

const NamedKey* findNamed(QStringView name) {
    for (const NamedKey& key : namedKeys) {
        if (*key.name != '\0' && name.compare(QLatin1StringView(key.name), Qt::CaseInsensitive) == 0) return &key;
    }
    return nullptr;
}

void appendNamed(std::vector<Stroke>& strokes, const QString& name, Qt::KeyboardModifiers modifiers) {
    bool isNumber = false;
    const int number = name.mid(1).toInt(&isNumber);
    if (name.startsWith('F', Qt::CaseInsensitive) && isNumber && number >= 1 && number <= 24) {
        strokes.push_back({static_cast<Qt::Key>(Qt::Key_F1 + number - 1), modifiers, {}});
    } else if (const NamedKey* key = findNamed(name)) {
        strokes.push_back({key->qt, modifiers, key->code == 13 ? QStringLiteral("\r") : QString()});
    }
}

Qt::KeyboardModifiers modifierOf(QChar c) {
    if (c == '+') return Qt::ShiftModifier;
    if (c == '^') return Qt::ControlModifier;
    if (c == '%') return Qt::AltModifier;
    return Qt::NoModifier;
}

}  // namespace

std::int16_t virtualKey(const QKeyEvent& event) {
    const int key = event.key();
    for (const NamedKey& named : namedKeys) {
        if (named.qt == key) return named.code;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return static_cast<std::int16_t>(firstFunctionKey + key - Qt::Key_F1);
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

std::vector<Stroke> strokes(std::string_view keys) {
    std::vector<Stroke> result;
    Qt::KeyboardModifiers modifiers;
    const QString text = toQt(keys);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (const auto modifier = modifierOf(text[i]); modifier != Qt::NoModifier) {
            modifiers |= modifier;
            continue;
        }
        const qsizetype end = text[i] == '{' ? text.indexOf('}', i) : -1;
        if (end > i) {
            appendNamed(result, text.mid(i + 1, end - i - 1), modifiers);
            i = end;
        } else {
            result.push_back({static_cast<Qt::Key>(text[i].toUpper().unicode()), modifiers, QString(text[i])});
        }
        modifiers = Qt::NoModifier;
    }
    return result;
}

}  // namespace hx::qt
