// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

namespace hx::qt {

[[nodiscard]] inline QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text for a tool tip that is shown as it is: a tool tip takes what looks like HTML for that.
[[nodiscard]] QString plainToolTip(const QString& text);
/// The same with a bold title above the text.
[[nodiscard]] QString titledToolTip(const QString& title, const QString& text);

/// Positions in a model count characters, in Qt UTF-16 units; both are converted within `text`.
[[nodiscard]] std::int32_t toCharacters(const QString& text, int units);
[[nodiscard]] int toUnits(const QString& text, std::int32_t characters);

}  // namespace hx::qt
