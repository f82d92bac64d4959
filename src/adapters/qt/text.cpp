#include "adapters/qt/text.h"

#include <algorithm>

namespace hx::qt {

std::int32_t toCharacters(const QString& text, int units) {
    const auto end = text.begin() + std::min<qsizetype>(units, text.size());
    return static_cast<std::int32_t>(std::count_if(text.begin(), end, [](QChar c) { return !c.isLowSurrogate(); }));
}

int toUnits(const QString& text, std::int32_t characters) {
    int units = 0;
    for (; units < text.size() && characters > 0; ++units) {
        if (!text[units].isHighSurrogate()) --characters;
    }
    return units;
}

}  // namespace hx::qt
