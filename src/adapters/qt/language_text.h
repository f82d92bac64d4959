#pragma once

#include <QString>
#include <array>
#include <cstddef>

namespace hx::qt {

/// A text of the user interface in both languages.
template <class Key>
struct LanguageText {
    Key key;
    const char* german;
    const char* english;
};

/// Empty when the key is not in the table.
template <class Key, std::size_t Size>
[[nodiscard]] QString textOf(const std::array<LanguageText<Key>, Size>& table, Key key, bool english) {
    for (const LanguageText<Key>& row : table) {
        if (row.key == key) return QString::fromUtf8(english ? row.english : row.german);
    }
    return {};
}

}  // namespace hx::qt
