// SPDX-License-Identifier: MIT
#include "forms/key_strokes.h"

#include <algorithm>
#include <charconv>

#include "automation/error.h"
#include "automation/text.h"
#include "automation/utf8.h"

namespace hx::forms {

namespace {

struct NamedKey {
    std::string_view name;
    std::int16_t code;
    bool types = false;  ///< a character, of the same number
};

constexpr NamedKey namedKeys[] = {
    {"BACKSPACE", key::backspace, true},
    {"TAB", key::tab, true},
    {"ENTER", key::enter, true},
    {"ESC", key::escape, true},
    {"PGUP", key::pageUp},
    {"PGDN", key::pageDown},
    {"END", key::end},
    {"HOME", key::home},
    {"LEFT", key::left},
    {"UP", key::up},
    {"RIGHT", key::right},
    {"DOWN", key::down},
    {"INSERT", key::insert},
    {"DEL", key::del},
    {"DELETE", key::del},
};

/// The number of a function key by its name; 0 for another name.
int functionKey(std::string_view name) {
    int number = 0;
    const bool isFunction = !name.empty() && automation::equalIgnoreCase(name.substr(0, 1), "F");
    const char* const end = name.data() + name.size();
    if (!isFunction || std::from_chars(name.data() + 1, end, number).ptr != end) return 0;
    return number <= key::f24 - key::f1 + 1 ? std::max(number, 0) : 0;
}

KeyStroke named(std::string_view name) {
    for (const NamedKey& row : namedKeys) {
        if (automation::equalIgnoreCase(row.name, name)) return {row.code, 0, row.types ? row.code : 0};
    }
    if (const int number = functionKey(name); number > 0) return {static_cast<std::int16_t>(key::f1 + number - 1)};
    throw automation::Error(automation::errFail, "There is no key \"{" + std::string(name) + "}\"");
}

// Letters, digits and the space have the codes of their capitals; where others lie depends on the keyboard.
KeyStroke typing(char32_t character) {
    const bool small = character >= 'a' && character <= 'z';
    const bool capital = character >= 'A' && character <= 'Z';
    const bool coded = small || capital || character == ' ' || (character >= '0' && character <= '9');
    const auto code = static_cast<std::int16_t>(small ? character - 'a' + 'A' : character);
    return {coded ? code : std::int16_t{0}, capital ? shift::shift : shift::none, static_cast<std::int32_t>(character)};
}

std::int16_t shiftOf(char c) {
    switch (c) {
        case '+': return shift::shift;
        case '^': return shift::ctrl;
        case '%': return shift::alt;
        default: return shift::none;
    }
}

/// Takes the key at the beginning off the text.
KeyStroke take(std::string_view& keys) {
    const auto end = keys.front() == '{' ? keys.find('}') : keys.npos;
    const automation::Utf8Character character = automation::decodeUtf8(keys, 0);
    const std::size_t used = end != keys.npos ? end + 1 : std::max<std::size_t>(character.length, 1);
    const KeyStroke stroke = end != keys.npos ? named(keys.substr(1, end - 1)) : typing(character.point);
    keys.remove_prefix(used);
    return stroke;
}

}  // namespace

std::vector<KeyStroke> keyStrokes(std::string_view keys) {
    std::vector<KeyStroke> strokes;
    int held = 0;
    while (!keys.empty()) {
        if (const std::int16_t prefix = shiftOf(keys.front()); prefix != 0) {
            held |= prefix;
            keys.remove_prefix(1);
            continue;
        }
        KeyStroke stroke = take(keys);
        stroke.shift = static_cast<std::int16_t>(stroke.shift | held);
        if ((held & (shift::ctrl | shift::alt)) != 0) stroke.character = 0;
        strokes.push_back(stroke);
        held = 0;
    }
    return strokes;
}

}  // namespace hx::forms
