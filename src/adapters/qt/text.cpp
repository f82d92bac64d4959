// SPDX-License-Identifier: MIT
#include "adapters/qt/text.h"

#include <QTextDocument>
#include <algorithm>

namespace hx::qt {

QString plainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
}

QString titledToolTip(const QString& title, const QString& text) {
    return QStringLiteral("<b>%1</b><br>%2").arg(title.toHtmlEscaped(), text.toHtmlEscaped());
}

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
