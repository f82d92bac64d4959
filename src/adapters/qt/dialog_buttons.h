// SPDX-License-Identifier: MIT
#pragma once

#include <QDialogButtonBox>

#include "adapters/qt/wording.h"

namespace hx::qt {

/// Gives the buttons of a toolkit's dialog the look of all others: the studio's texts for OK and Cancel, no pictures.
void dressButtons(QDialogButtonBox& buttons, const Wording& wording);

}  // namespace hx::qt
