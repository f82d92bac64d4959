// SPDX-License-Identifier: MIT
#include "adapters/qt/fonts.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "adapters/qt/text.h"

namespace hx::qt {

QFont toQt(const forms::Font::Values& font) {
    QFont result(toQt(font.name));
    result.setPointSizeF(font.size);
    result.setWeight(static_cast<QFont::Weight>(std::clamp<int>(font.weight, 1, 1000)));
    result.setItalic(font.italic);
    result.setStrikeOut(font.strikethrough);
    result.setUnderline(font.underline);
    return result;
}

// Sizes of settings are whole numbers when they are applied.
QFont shownFont(const forms::Font::Values& font) {
    QFont result = toQt(font);
    forms::Font::Values usual;
    const bool usualSize = font.size == usual.size || font.size == std::floor(usual.size);
    usual.size = font.size;
    usual.charset = font.charset;
    const qreal desktop = QGuiApplication::font().pointSizeF();
    if (font == usual && usualSize && desktop > font.size) result.setPointSizeF(desktop);
    return result;
}

forms::Font::Values fromQt(const QFont& font, const forms::Font::Values& previous) {
    forms::Font::Values result = previous;
    result.name = fromQt(font.family());
    if (font.pointSizeF() > 0) result.size = font.pointSizeF();
    result.weight = static_cast<std::int16_t>(font.weight());
    result.italic = font.italic();
    result.strikethrough = font.strikeOut();
    result.underline = font.underline();
    return result;
}

}  // namespace hx::qt
