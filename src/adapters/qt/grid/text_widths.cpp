// SPDX-License-Identifier: MIT
#include "adapters/qt/grid/text_widths.h"

#include <QFontMetricsF>
#include <cmath>

namespace hx::qt {

namespace {

// Other characters up to here have no width of their own: controls and the hyphen that only a line end shows.
bool isPlain(char16_t c) {
    constexpr char16_t lastAscii = 126, firstLatin = 161, softHyphen = 173, lastLatin = 255;
    return (c >= u' ' && c <= lastAscii) || (c >= firstLatin && c <= lastLatin && c != softHyphen);
}

}  // namespace

void TextWidths::use(const QFont& font) {
    if (known_ && font == font_) return;
    font_ = font;
    known_ = true;
    const QFontMetricsF metrics(font);
    for (std::size_t i = 0; i < letters; ++i) {
        const auto c = static_cast<char16_t>(i);
        widths_[i] = isPlain(c) ? metrics.horizontalAdvance(QChar(c)) : 0;
    }
}

std::optional<int> TextWidths::of(const QString& text) const {
    qreal width = 0;
    for (const QChar c : text) {
        if (!isPlain(c.unicode())) return std::nullopt;
        width += widths_[c.unicode()];
    }
    return static_cast<int>(std::ceil(width));
}

}  // namespace hx::qt
