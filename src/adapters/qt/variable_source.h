// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/qt/variable_list.h"

namespace hx::qt {

/// Where the choice of a variable takes its list.
class VariableSource {
  public:
    virtual ~VariableSource() = default;
    /// Throws automation::Error when it cannot be read.
    [[nodiscard]] virtual VariableList variables() const = 0;
};

}  // namespace hx::qt
