// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/com/array.h"
#include "adapters/com/border.h"

namespace hx::com {

/// COM's arrays of one dimension, of values or of any one kind of them.
[[nodiscard]] std::shared_ptr<Array> takeArray(Border& border, const VARIANT& value);
/// An array of values, for the caller to destroy.
[[nodiscard]] SAFEARRAY* giveArray(Border& border, const Array& array);

}  // namespace hx::com
