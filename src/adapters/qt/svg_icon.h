// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QPixmap>

#include "forms/picture.h"

namespace hx::qt {

/// An icon that is drawn from SVG at every size and scale; faded while disabled. A null icon for an empty picture or
/// for text that is no SVG.
[[nodiscard]] QIcon svgIcon(const QByteArray& svg);
/// The same of the file NAME.svg below pictures/.
[[nodiscard]] QIcon namedIcon(const char* name);
[[nodiscard]] QIcon svgIcon(const forms::Picture& picture);

/// The picture in a square of `size` pixels; a null image when it cannot be drawn.
[[nodiscard]] QImage svgImage(const QByteArray& svg, int size);

}  // namespace hx::qt
