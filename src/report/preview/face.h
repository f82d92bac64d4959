// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QStringList>

#include "adapters/qt/grid/text_widths.h"

namespace hx::report {

/// All lengths of a page are twips, whatever it is drawn on.
inline constexpr double twipsPerInch = 1440, twipsPerPoint = 20;

/// A type face of the report.
class Face {
  public:
    Face(double points, bool bold);

    [[nodiscard]] const QFont& font() const noexcept { return font_; }
    [[nodiscard]] double ascent() const noexcept { return ascent_; }
    [[nodiscard]] double lineHeight() const noexcept { return lineHeight_; }
    [[nodiscard]] double width(const QString& text) const;
    /// The lines of a text that is no wider than `width`: broken at its own line ends, between words and, where a word
    /// is wider, within it. At least one line.
    [[nodiscard]] QStringList lines(const QString& text, double width) const;

  private:
    void addLines(QStringList& lines, const QString& paragraph, double width) const;
    QFont font_;
    QFontMetricsF metrics_;
    qt::TextWidths widths_;
    double ascent_, lineHeight_;
};

/// The faces of the report.
struct Faces {
    Face title{22, true}, section{13, true}, heading{9.5, true}, body{9, false}, small{8, false};
};

}  // namespace hx::report
