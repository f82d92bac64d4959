// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Simple readings of a topic's HTML.
namespace hx::qt {

/// Replaces "&amp;", "&#228;" and the like.
[[nodiscard]] QString decodeEntities(const QString& text);

/// What a reader sees of the body, its white space simplified.
[[nodiscard]] QString plainText(const QString& html);

/// What stands in "title"; empty without one.
[[nodiscard]] QString titleOfHtml(const QString& html);

}  // namespace hx::qt
