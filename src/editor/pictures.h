// SPDX-License-Identifier: MIT
#pragma once

#include "forms/picture.h"

/// The editor's own pictures, 16 by 16, in colours that stand out on light and on dark ground.
namespace hx::editor::pictures {

[[nodiscard]] forms::Picture create();   ///< a sheet with a plus
[[nodiscard]] forms::Picture edit();     ///< a pencil
[[nodiscard]] forms::Picture remove();   ///< a bin
[[nodiscard]] forms::Picture refresh();  ///< two arrows in a circle
[[nodiscard]] forms::Picture choose();   ///< three dots

}  // namespace hx::editor::pictures
