// SPDX-License-Identifier: MIT
#include "report/preview/face.h"

#include <QTextLayout>
#include <algorithm>

namespace hx::report {

namespace {

constexpr double leading = 1.25;

// Without hinting a text is as wide at every zoom and on every device as it was measured.
QFont fontOf(double points, bool bold) {
    QFont font(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(qRound(points * twipsPerPoint));
    font.setBold(bold);
    return font;
}

bool isControl(QChar c) { return c.category() == QChar::Other_Control; }

// What has no line of its own on paper.
QString printable(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace('\r', '\n').replace('\t', ' ');
    for (QChar& c : text) {
        if (isControl(c) && c != '\n') c = QChar::ReplacementCharacter;
    }
    return text;
}

}  // namespace

Face::Face(double points, bool bold)
    : font_(fontOf(points, bold)),
      metrics_(font_),
      ascent_(metrics_.ascent() + (leading - 1) / 2 * points * twipsPerPoint),
      lineHeight_(points * twipsPerPoint * leading) {
    widths_.use(font_);
}

double Face::width(const QString& text) const {
    const auto quick = widths_.of(text);
    return quick ? *quick : metrics_.horizontalAdvance(text);
}

QStringList Face::lines(const QString& text, double width) const {
    QStringList result;
    // Nearly all texts are one line of letters.
    if (std::ranges::none_of(text, isControl)) addLines(result, text, width);
    else
        for (const QString& paragraph : printable(text).split('\n')) addLines(result, paragraph, width);
    return result;
}

void Face::addLines(QStringList& lines, const QString& paragraph, double width) const {
    if (this->width(paragraph) <= width) {
        lines.append(paragraph);
        return;
    }
    QTextLayout layout(paragraph, font_);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
}

}  // namespace hx::report
