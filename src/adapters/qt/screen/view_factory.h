// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <memory>

#include "adapters/qt/controls/control_view.h"

namespace hx::qt {

/// The view for the kind of control, with its widget in `area`. Throws automation::Error for a kind that none shows.
[[nodiscard]] std::unique_ptr<ControlView> makeView(forms::Control& control, SurroundingForm& form, QWidget& area);

}  // namespace hx::qt
