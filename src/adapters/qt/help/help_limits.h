// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// What of a help file is laid out. A file can hold topics that would take hours: nested tables take twice the time for
/// each level, nested elements and unbroken lines the square of their number.
namespace hx::qt {

/// Whether a topic is small and flat enough to be laid out while a reader waits.
[[nodiscard]] bool canBeLaidOut(const QString& html);

/// What a topic that is not laid out says, as far as a reader gets, as HTML.
[[nodiscard]] QString textAlone(const QString& html);

/// The rules in a style sheet, about; and how many a topic may have.
[[nodiscard]] qsizetype ruleCount(const QString& sheet);
inline constexpr qsizetype mostRules = 1000;

/// Whether a picture is one of pixels and not too large to be unpacked.
[[nodiscard]] bool canBeShown(const QByteArray& picture);

}  // namespace hx::qt
