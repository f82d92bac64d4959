#pragma once

#include "forms/form.h"

namespace hx::dialogs {

/// Gives the controls of a dialog's rows, its buttons and the dialog itself places and sizes in twips: for windows that
/// have no layout of their own. A page that is not shown stays out of sight.
void placeRows(forms::Form& form);

}  // namespace hx::dialogs
