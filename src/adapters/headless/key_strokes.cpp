#include "adapters/headless/key_strokes.h"

#include <string>

#include "automation/error.h"
#include "automation/text.h"
#include "forms/input.h"
#include "forms/simple_controls.h"

namespace hx::headless {

namespace key = forms::key;

namespace {

struct NamedKey {
    std::string_view name;
    std::int16_t code;
    std::int32_t character = 0;
};

constexpr NamedKey namedKeys[] = {
    {"TAB", key::tab, key::tab},
    {"ENTER", key::enter, key::enter},
    {"ESC", key::escape, key::escape},
    {"PGUP", key::pageUp},
    {"PGDN", key::pageDown},
    {"END", key::end},
    {"HOME", key::home},
    {"LEFT", key::left},
    {"UP", key::up},
    {"RIGHT", key::right},
    {"DOWN", key::down},
    {"DEL", key::del},
    {"DELETE", key::del},
};

constexpr int functionKeys = 12;

KeyStroke named(std::string_view name) {
    for (const NamedKey& row : namedKeys) {
        if (automation::equalIgnoreCase(row.name, name)) return {row.code, 0, row.character};
    }
    for (std::int16_t number = 1; number <= functionKeys; ++number) {
        if (automation::equalIgnoreCase("F" + std::to_string(number), name)) {
            return {static_cast<std::int16_t>(key::f1 + number - 1), 0, 0};
        }
    }
    throw automation::Error(automation::errFail, "There is no key \"{" + std::string(name) + "}\"");
}

KeyStroke plain(char c) {
    const bool small = c >= 'a' && c <= 'z';
    const bool capital = c >= 'A' && c <= 'Z';
    const auto code = static_cast<std::int16_t>(small ? c - 'a' + 'A' : c);
    return {code, capital ? forms::shift::shift : forms::shift::none, static_cast<unsigned char>(c)};
}

std::int16_t shiftOf(char c) {
    switch (c) {
        case '+': return forms::shift::shift;
        case '^': return forms::shift::ctrl;
        case '%': return forms::shift::alt;
        default: return forms::shift::none;
    }
}

forms::Control* focused(const forms::Form& form) {
    for (const auto& control : form.controls()) {
        if (control->hasFocus()) return control.get();
    }
    return nullptr;
}

void pressButton(forms::Form& form, std::int16_t code) {
    if (code != key::enter && code != key::escape) return;
    const auto controls = form.controls();
    for (const auto& control : controls) {
        auto* button = dynamic_cast<forms::CommandButton*>(control.get());
        if (button == nullptr || !button->visible()) continue;
        if (code == key::enter ? button->isDefault() : button->isCancel()) return button->click();
    }
}

}  // namespace

std::vector<KeyStroke> keyStrokes(std::string_view keys) {
    std::vector<KeyStroke> strokes;
    std::int16_t shift = 0;
    while (!keys.empty()) {
        const char first = keys.front();
        const auto end = first == '{' ? keys.find('}') : std::string_view::npos;
        const std::size_t used = end == std::string_view::npos ? 1 : end + 1;
        if (const std::int16_t prefix = shiftOf(first); prefix != 0) {
            shift = static_cast<std::int16_t>(shift | prefix);
        } else {
            KeyStroke stroke = used > 1 ? named(keys.substr(1, used - 2)) : plain(first);
            stroke.shift = static_cast<std::int16_t>(stroke.shift | shift);
            if ((shift & (forms::shift::ctrl | forms::shift::alt)) != 0) stroke.character = 0;
            strokes.push_back(stroke);
            shift = 0;
        }
        keys.remove_prefix(used);
    }
    return strokes;
}

void type(forms::Form& form, const KeyStroke& stroke) {
    const auto keepForm = form.share();
    forms::Control* const control = focused(form);
    const auto keepControl = control != nullptr ? control->share() : nullptr;
    const bool toForm = control == nullptr || form.keyPreview();

    forms::KeyEvent down{stroke.code, stroke.shift};
    if (toForm) form.keyDown(down);
    if (control != nullptr && !down.swallowed()) control->keyDown(down);
    if (down.swallowed() || !form.loaded()) return;

    forms::KeyPress press{stroke.character};
    if (toForm && !press.swallowed()) form.keyPress(press);
    if (control != nullptr && !press.swallowed()) control->keyPress(press);
    const bool taken = stroke.character != 0 && press.swallowed();
    if (!taken && form.loaded()) pressButton(form, stroke.code);
    if (!form.loaded()) return;

    forms::KeyEvent up{stroke.code, stroke.shift};
    if (toForm) form.keyUp(up);
    if (control != nullptr && !up.swallowed()) control->keyUp(up);
}

}  // namespace hx::headless
