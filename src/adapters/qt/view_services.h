// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/cell_marks.h"
#include "adapters/qt/popup_place.h"
#include "adapters/qt/units.h"
#include "adapters/qt/variable_source.h"
#include "adapters/qt/wording.h"

namespace hx::qt {

/// What the views of a screen share; lent to each of them.
struct ViewServices {
    Units units;
    const Wording& wording;
    const VariableSource* variables = nullptr;  ///< null: lists of variables are empty
    const CellMarks* marks = nullptr;           ///< null: none
    PopUpPlace popUps{};
};

}  // namespace hx::qt
